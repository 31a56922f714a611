#pragma once

#include "platform/Image.h"

#include <QImage>

namespace platform {

struct Image::Peer {
    QImage picture;  ///< one pixel a point
    QImage detailed; ///< the same picture at two pixels a point; null where there is none
    bool isTemplate = false;

    /// The one to draw on a screen of that many pixels a point.
    [[nodiscard]] const QImage& pictureFor(double pixelsPerPoint) const {
        return pixelsPerPoint > 1 && !detailed.isNull() ? detailed : picture;
    }
};

} // namespace platform
