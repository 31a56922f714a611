#pragma once

#include "tests/desktop/support/XDisplay.h"

#include <span>
#include <string>

namespace desktop {

/// Says that it is a window manager and lists whatever windows a test wants, true or not, but does
/// nothing for any of them. For desktops without a real one.
class FakeWindowManager {
  public:
    explicit FakeWindowManager(const std::string& display);

    /// Has these be the windows that it manages.
    void list(std::span<const xcb_window_t> windows);

    /// The window that stands for the manager.
    [[nodiscard]] xcb_window_t checkWindow() const { return checkWindow_; }

    /// For saying anything else, on the root, on its own window or on others'.
    [[nodiscard]] const XDisplay& display() const { return display_; }

  private:
    XDisplay display_;
    xcb_window_t checkWindow_;
};

} // namespace desktop
