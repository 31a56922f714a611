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

} // namespace platform::linux_host
