#pragma once

#include <filesystem>

namespace platform::linux_host {

/// Where the user's configuration lives: $XDG_CONFIG_HOME, or $HOME/.config when that is not set or
/// not absolute, as the XDG base directory rules say. Empty when there is no home folder either.
[[nodiscard]] std::filesystem::path configHome();

} // namespace platform::linux_host
