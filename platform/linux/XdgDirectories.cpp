#include "platform/linux/XdgDirectories.h"

#include <cstdlib>

namespace platform::linux_host {
namespace {

std::filesystem::path absolutePathIn(const char* variable) {
    const char* const value = std::getenv(variable);
    const std::filesystem::path path(value == nullptr ? "" : value);
    return path.is_absolute() ? path : std::filesystem::path();
}

} // namespace

std::filesystem::path configHome() {
    if (auto folder = absolutePathIn("XDG_CONFIG_HOME"); !folder.empty()) {
        return folder;
    }
    const auto home = absolutePathIn("HOME");
    return home.empty() ? home : home / ".config";
}

} // namespace platform::linux_host
