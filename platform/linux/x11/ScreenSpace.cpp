#include "platform/linux/x11/ScreenSpace.h"

namespace platform::linux_host {

Point ScreenSpace::pointOf(std::int32_t x, std::int32_t y) const {
    return {(x - primary.x) / scale, (primary.y + primary.height - y) / scale};
}

Rect ScreenSpace::rectOf(const PixelRect& pixels) const {
    return {.origin = pointOf(pixels.x, pixels.y + pixels.height),
            .size = {pixels.width / scale, pixels.height / scale}};
}

} // namespace platform::linux_host
