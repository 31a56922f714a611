#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

namespace desktop {

enum class WindowManager { none, openbox, xfwm4, metacity };

/// The program's name; "none" for none.
[[nodiscard]] std::string name(WindowManager manager);
std::ostream& operator<<(std::ostream& stream, WindowManager manager);

/// Writes what the manager should read, below a fresh configuration folder ($XDG_CONFIG_HOME): no
/// key bindings that could swallow a key, no animations, four virtual desktops.
void configure(WindowManager manager, const std::filesystem::path& configurationFolder);

/// How to start the manager in the foreground, once configured. Empty for none.
[[nodiscard]] std::vector<std::string> argumentsFor(WindowManager manager);

} // namespace desktop
