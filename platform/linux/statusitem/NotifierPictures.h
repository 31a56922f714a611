#pragma once

#include "platform/linux/statusitem/StatusButtonFace.h"

#include <QImage>
#include <vector>

namespace platform::linux_host {

/// The face of a status button, in its compact form, as square pictures for panels that choose the
/// one that they have room for. Rows of pixels without gaps, each pixel as four bytes: its opacity,
/// then red, green and blue, not multiplied by it.
[[nodiscard]] std::vector<QImage> notifierPictures(const StatusButtonContent& content,
                                                   const QPalette& surroundings);

} // namespace platform::linux_host
