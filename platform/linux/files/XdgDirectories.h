#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

namespace platform::linux_host {

/// The absolute path that an environment variable holds; empty when it holds none.
[[nodiscard]] std::filesystem::path absolutePathIn(const char* variable);

/// The absolute paths in a list with colons between them, as PATH is; the others are passed over.
[[nodiscard]] std::vector<std::filesystem::path> absolutePathsIn(std::string_view list);

/// Where the user's configuration lives: $XDG_CONFIG_HOME, or $HOME/.config when that is not set or
/// not absolute, as the XDG base directory rules say. Empty when there is no home folder either.
[[nodiscard]] std::filesystem::path configHome();

/// Where the configuration for all users lives, the most important folder first: $XDG_CONFIG_DIRS,
/// or /etc/xdg when that is not set.
[[nodiscard]] std::vector<std::filesystem::path> configDirectories();

} // namespace platform::linux_host
