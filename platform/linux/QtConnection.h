#pragma once

#include <xcb/xcb.h>

/// Qt's own connection to the X server, through which this program's windows come and go.
namespace platform::linux_host {

/// Null when Qt does not run on X11.
[[nodiscard]] xcb_connection_t* qtConnection();

/// Waits until the server has done what Qt has asked it for, so that what is sent over another
/// connection finds it done. One round trip.
void synchronizeQt();

} // namespace platform::linux_host
