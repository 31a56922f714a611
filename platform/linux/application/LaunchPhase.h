#pragma once

namespace platform::linux_host {

/// Whether the program is still launching, that is, does things without having been asked by the
/// user. It is until `endLaunch()` says that `applicationDidFinishLaunching` has returned.
[[nodiscard]] bool isLaunching();
void endLaunch();

} // namespace platform::linux_host
