#pragma once

namespace platform::linux_host {

class Connection;

/// Whether the X server is XWayland, which shows X programs on a Wayland desktop: it knows nothing
/// of the windows of others, and its key grabs miss them. A few round trips.
[[nodiscard]] bool isXWayland(Connection& connection);

} // namespace platform::linux_host
