#pragma once

#include "tests/desktop/support/WindowSpec.h"
#include "tests/desktop/support/XDisplay.h"

#include <cstdint>
#include <vector>

namespace desktop {

/// What is to be seen on a part of the screen, at one moment.
class ScreenPicture {
  public:
    ScreenPicture(const XDisplay& display, const Geometry& part);

    [[nodiscard]] int width() const { return width_; }
    [[nodiscard]] int height() const { return height_; }

    /// As 0xRRGGBB. Counted from the top left of the part.
    [[nodiscard]] std::uint32_t pixel(int x, int y) const;

    bool operator==(const ScreenPicture&) const = default;

  private:
    int width_;
    int height_;
    std::vector<std::uint32_t> pixels_;
};

} // namespace desktop
