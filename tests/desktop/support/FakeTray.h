#pragma once

#include "tests/desktop/support/WindowSpec.h"
#include "tests/desktop/support/XDisplay.h"

#include <cstdint>
#include <optional>
#include <string>

namespace desktop {

/// A system tray that does what a test wants. It is at the top left of the screen and takes one
/// window, which gets a width of 100 pixels, even if the tray is not that wide.
class FakeTray {
  public:
    /// Takes the place of the tray.
    explicit FakeTray(const std::string& display, std::uint32_t ground = 0x000000,
                      std::uint16_t width = 100);

    [[nodiscard]] const Geometry& place() const { return place_; }

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
    Geometry place_;
    xcb_window_t window_;
    xcb_window_t guest_ = XCB_NONE;
};

} // namespace desktop
