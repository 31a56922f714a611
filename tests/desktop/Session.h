#pragma once

#include "tests/desktop/support/Keyboard.h"
#include "tests/desktop/support/Quellbar.h"
#include "tests/desktop/support/TestWindows.h"
#include "tests/desktop/support/VirtualDesktop.h"
#include "tests/desktop/support/WindowManager.h"
#include "tests/desktop/support/Windows.h"

#include <optional>

namespace desktop {

/// A user's session: a desktop, a keyboard, an application whose windows a test opens, and, once it
/// is launched, the program.
class Session {
  public:
    explicit Session(WindowManager manager = WindowManager::openbox, ScreenSize size = {})
        : desktop(manager, size), windows(desktop.display()), keyboard(desktop.display()),
          application(desktop) {}

    /// Starts the program and returns when it has launched.
    void launch() { quellbar.emplace(desktop); }

    /// Returns when the program has done all that the keys before made it do, and the window
    /// manager all that it was asked to.
    void settle() {
        quellbar->settle();
        if (desktop.hasWindowManager()) {
            windows.settle();
        }
    }

    /// Presses the keys and settles.
    void press(const Chord& chord) {
        keyboard.press(chord);
        settle();
    }

    /// Whether a press of the keys minimizes a window that is opened for it.
    bool minimizesBy(const Chord& chord) {
        const auto window = application.open();
        press(chord);
        return windows.isHidden(window);
    }

    VirtualDesktop desktop;
    Windows windows;
    Keyboard keyboard;
    TestWindows application;
    std::optional<Quellbar> quellbar;
};

} // namespace desktop
