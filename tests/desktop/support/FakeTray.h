#pragma once

#include "tests/desktop/support/WindowSpec.h"
#include "tests/desktop/support/XDisplay.h"

#include <cstdint>
#include <optional>
#include <string>

namespace desktop {

/// A system tray that does what a test wants. It is at the top left of the screen and takes one
/// window, which gets all of it.
class FakeTray {
  public:
    static constexpr Geometry place{.x = 0, .y = 0, .width = 100, .height = 24};

    /// Takes the place of the tray, unless another has it.
    explicit FakeTray(const std::string& display, std::uint32_t ground = 0x000000);

    /// Says that text and symbols are to have this colour, as 0xRRGGBB.
    void nameForeground(std::uint32_t color);

    /// Waits until a window asks to be taken. Throws `TimedOut`.
    void waitForRequest();
    /// Takes the window that has asked.
    void take();
    /// Puts the window out again.
    void putOut();

  private:
    XDisplay display_;
    xcb_window_t window_;
    xcb_window_t guest_ = XCB_NONE;
};

} // namespace desktop
