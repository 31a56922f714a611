#pragma once

#include <xcb/xcb.h>

/// Qt's own connection to the X server, through which this program's windows come and go.
namespace platform::linux_host {

/// Null when Qt does not run on X11.
[[nodiscard]] xcb_connection_t* qtConnection();

/// Tells the window manager, and whoever draws shadows, what kind of window this one of Qt's is:
/// one of the types of _NET_WM_WINDOW_TYPE. To be called when Qt has created the window, before it
/// is shown. (The widget attributes that Qt has for this do nothing in Qt 6.4.)
void setWindowType(xcb_window_t window, xcb_atom_t type);

/// Waits until the server has done what Qt has asked it for, so that what is sent over another
/// connection finds it done. One round trip.
void synchronizeQt();

} // namespace platform::linux_host
