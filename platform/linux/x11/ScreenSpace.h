#pragma once

#include "platform/Geometry.h"

#include <cstdint>

namespace platform::linux_host {

/// A rectangle in pixels of the X server, whose origin is at the top left.
struct PixelRect {
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;

    bool operator==(const PixelRect&) const = default;
};

/// Turns pixels of the X server into points of the global screen coordinates, whose origin is at
/// the bottom left of the primary screen: the one place where y is turned over. The scale of the
/// primary screen is used for all, so that screens and pointer stay in one plane.
struct ScreenSpace {
    PixelRect primary;
    double scale = 1; ///< pixels a point

    [[nodiscard]] Point pointOf(std::int32_t x, std::int32_t y) const;
    [[nodiscard]] Rect rectOf(const PixelRect& pixels) const;

    bool operator==(const ScreenSpace&) const = default;
};

} // namespace platform::linux_host
