#pragma once

#include <string_view>

namespace platform::linux_host {

/// The program's name among desktops: of its .desktop files, its icon and its name on the bus.
inline constexpr std::string_view applicationId = "io.github.quellbar.Quellbar";

/// The program's name among people.
inline constexpr std::string_view applicationName = "Quellbar";

} // namespace platform::linux_host
