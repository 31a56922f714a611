#pragma once

#include "tests/desktop/support/Keyboard.h"
#include "tests/desktop/support/Menus.h"
#include "tests/desktop/support/Pointer.h"
#include "tests/desktop/support/StatusItem.h"
#include "tests/desktop/support/XDisplay.h"

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

/// The program's own windows, used as its user does: with pointer and keyboard. Waiting throws
/// `TimedOut`.
class OwnWindows {
  public:
    explicit OwnWindows(const std::string& display);

    /// Opens the status menu by a click on the status item.
    void openMenu();

    /// Opens a window from the status menu, or brings it to the front, and waits until it is the
    /// active one.
    xcb_window_t openSettings();
    xcb_window_t openAbout();

    /// Waits until the settings window is the active one, whoever opened it.
    xcb_window_t waitForSettings() { return waitForActive("Quellbar Settings"); }

    /// Clicks into a window, and returns when the window manager has let the click through to it: a
    /// key that is pressed then comes after the click.
    void click(xcb_window_t window, ContentPoint place);

    /// Closes a window as its close button does, and waits until it is gone from the screen.
    void close(xcb_window_t window);

    /// Where the upper left corner of the window's content is.
    [[nodiscard]] ScreenPoint place(xcb_window_t window) const;
    [[nodiscard]] bool isActive(xcb_window_t window) const;
    /// Whether the window is the uppermost of those that the window manager has ordered.
    [[nodiscard]] bool isOnTop(xcb_window_t window) const;

  private:
    void waitUntilClickIsThrough() const;
    xcb_window_t waitForActive(const std::string& title);
    [[nodiscard]] bool isViewable(xcb_window_t window) const;

    XDisplay display_;
    StatusItem item_;
    Menus menus_;
    Pointer pointer_;
    Keyboard keyboard_;
};

} // namespace desktop
