#pragma once

#include "tests/desktop/support/Keyboard.h"
#include "tests/desktop/support/Pointer.h"
#include "tests/desktop/support/XDisplay.h"

#include <functional>
#include <string>

namespace desktop {

/// A position within a window's content: in points, from its bottom left.
struct ContentPoint {
    int x;
    int y;
};

/// A position on the screen: in pixels, from its top left.
struct ScreenPoint {
    int x;
    int y;

    bool operator==(const ScreenPoint&) const = default;
};

/// What the program itself shows, used as its user does: with pointer and keyboard. On a desktop
/// without a system tray, where the status item is a strip of its own. Waiting throws `TimedOut`.
class OwnWindows {
  public:
    explicit OwnWindows(const std::string& display);

    /// Opens the status menu by a click on the status item.
    void openMenu();

    /// Opens a window from the status menu, or brings it to the front, and waits until it is the
    /// active one.
    xcb_window_t openSettings();
    xcb_window_t openAbout();

    /// Clicks into a window.
    void click(xcb_window_t window, ContentPoint place);

    /// Closes a window as its close button does, and waits until it is gone from the screen.
    void close(xcb_window_t window);

    /// Where the upper left corner of the window's content is.
    [[nodiscard]] ScreenPoint place(xcb_window_t window) const;
    [[nodiscard]] bool isActive(xcb_window_t window) const;
    /// Whether the window is the uppermost of those that the window manager has ordered.
    [[nodiscard]] bool isOnTop(xcb_window_t window) const;

  private:
    [[nodiscard]] xcb_window_t find(const std::function<bool(xcb_window_t)>& isSought) const;
    [[nodiscard]] xcb_window_t openedMenu() const;
    [[nodiscard]] xcb_window_t statusItem() const;
    xcb_window_t waitForActive(const std::string& title);
    [[nodiscard]] bool isViewable(xcb_window_t window) const;

    XDisplay display_;
    Pointer pointer_;
    Keyboard keyboard_;
};

} // namespace desktop
