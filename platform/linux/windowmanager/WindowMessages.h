#pragma once

#include <xcb/xproto.h>

/// What this program asks of the window manager. The requests stay in the connection's buffer, and
/// nothing answers them.
namespace platform::linux_host {

class Connection;

/// Asks for the window to be minimized, as a program asks for its own windows.
void askToMinimize(Connection& connection, xcb_window_t window);

/// Asks for the window to be shown, raised and given the focus, as a task bar does.
void askToActivate(Connection& connection, xcb_window_t window);

/// Asks for the shown window to be left out of task bar and pager, or taken in again.
void askToSkipTaskbar(Connection& connection, xcb_window_t window, bool skips);

/// Tells the window manager, in the window's own hints, whether the window may be minimized.
void setMayBeMinimized(Connection& connection, xcb_window_t window, bool mayBe);

} // namespace platform::linux_host
