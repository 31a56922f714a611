#pragma once

#include <optional>

namespace platform::linux_host {

/// Why the windows of this desktop cannot be minimized from outside.
enum class Distrust {
    waylandServer,   ///< the X server is XWayland, which knows only some of the windows
    noWindowManager, ///< none is running, or none that says so
    noWindowList,    ///< the window manager does not list the windows
};

/// Null means that this desktop can be worked with at this moment. No round trip to the X server as
/// long as the window manager is the one of the last time, else three.
[[nodiscard]] std::optional<Distrust> reasonForDistrust();

/// Writes a line for the user to the log, the first time for each reason since `forgetReports`.
void reportDistrust(Distrust reason);
void forgetReports();

} // namespace platform::linux_host
