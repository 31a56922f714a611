#pragma once

#include "tests/desktop/support/WindowSpec.h"
#include "tests/desktop/support/XDisplay.h"

#include <string_view>
#include <vector>

namespace desktop {

/// A window of the program that can be seen, wherever it is in the tree of windows.
struct ProgramWindow {
    xcb_window_t window = XCB_NONE;
    xcb_window_t parent = XCB_NONE;
    Geometry frame{};         ///< from the top left of the screen
    bool isUnmanaged = false; ///< the window manager leaves it alone, as menus ask for
};

/// All of them, those below others first.
[[nodiscard]] std::vector<ProgramWindow> programWindows(const XDisplay& display);

/// Whether the window says that it is of a type, such as "_NET_WM_WINDOW_TYPE_DOCK".
[[nodiscard]] bool saysItIs(const XDisplay& display, xcb_window_t window, std::string_view type);

} // namespace desktop
