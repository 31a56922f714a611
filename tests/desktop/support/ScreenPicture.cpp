#include "tests/desktop/support/ScreenPicture.h"

#include <cstring>
#include <stdexcept>

namespace desktop {

ScreenPicture::ScreenPicture(const XDisplay& display, const Geometry& part)
    : width_(part.width), height_(part.height),
      pixels_(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_)) {
    constexpr std::uint32_t allPlanes = ~0U;
    const auto cookie =
        xcb_get_image(display.connection(), XCB_IMAGE_FORMAT_Z_PIXMAP, display.root(), part.x,
                      part.y, part.width, part.height, allPlanes);
    const Reply<xcb_get_image_reply_t> reply(
        xcb_get_image_reply(display.connection(), cookie, nullptr));
    const std::size_t size = pixels_.size() * sizeof(std::uint32_t);
    if (!reply || static_cast<std::size_t>(xcb_get_image_data_length(reply.get())) != size) {
        throw std::runtime_error("that part of the screen cannot be read");
    }
    std::memcpy(pixels_.data(), xcb_get_image_data(reply.get()), size);
}

std::uint32_t ScreenPicture::pixel(int x, int y) const {
    constexpr std::uint32_t colorBits = 0xFFFFFF;
    const auto index = static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                       static_cast<std::size_t>(x);
    return pixels_.at(index) & colorBits;
}

} // namespace desktop
