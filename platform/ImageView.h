#pragma once

#include "platform/Image.h"
#include "platform/View.h"

#include <memory>

namespace platform {

/// Shows an image, scaled down to fit in proportion. Stands for NSImageView on macOS, QLabel on
/// Linux.
class ImageView : public View {
  public:
    [[nodiscard]] static std::shared_ptr<ImageView> withFrame(Rect frame);

    /// Null shows nothing.
    void setImage(std::shared_ptr<Image> image);

    explicit ImageView(std::unique_ptr<Peer> peer);
};

} // namespace platform
