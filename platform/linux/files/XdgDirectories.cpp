#include "platform/linux/files/XdgDirectories.h"

#include <cstdlib>

namespace platform::linux_host {

namespace fs = std::filesystem;

fs::path absolutePathIn(const char* variable) {
    const char* const value = std::getenv(variable);
    const fs::path path(value == nullptr ? "" : value);
    return path.is_absolute() ? path : fs::path();
}

std::vector<fs::path> absolutePathsIn(std::string_view list) {
    std::vector<fs::path> paths;
    while (!list.empty()) {
        const std::size_t end = list.find(':');
        if (const fs::path path(list.substr(0, end)); path.is_absolute()) {
            paths.push_back(path);
        }
        list.remove_prefix(end == std::string_view::npos ? list.size() : end + 1);
    }
    return paths;
}

fs::path configHome() {
    if (auto folder = absolutePathIn("XDG_CONFIG_HOME"); !folder.empty()) {
        return folder;
    }
    const auto home = absolutePathIn("HOME");
    return home.empty() ? home : home / ".config";
}

std::vector<fs::path> configDirectories() {
    const char* const value = std::getenv("XDG_CONFIG_DIRS");
    const bool isSet = value != nullptr && *value != '\0';
    return absolutePathsIn(isSet ? value : "/etc/xdg");
}

} // namespace platform::linux_host
