#pragma once

#include "platform/linux/x11/ScreenSpace.h"

#include <functional>
#include <vector>

/// The monitors of the X server, as its RandR extension knows them.
namespace platform::linux_host {

class Connection;

/// The primary monitor first, then the others in the server's order. A server without RandR 1.5 has
/// one, as large as its root window. One round trip.
[[nodiscard]] std::vector<PixelRect> readMonitors(Connection& connection);

/// Has `onChange` called whenever the server says that its monitors changed.
void watchMonitors(Connection& connection, std::function<void()> onChange);

} // namespace platform::linux_host
