#pragma once

#include "platform/linux/files/FileIdentity.h"

#include <filesystem>
#include <string>

namespace platform::linux_host {

struct FileContent {
    std::string text;
    FileIdentity identity; ///< taken before reading: a change meanwhile shows as another identity
};

/// Throws std::system_error unless this is a regular file: reading another could wait, or do
/// things.
void requireRegularFile(const struct stat& status);

/// Reads a regular file, but no more than `mostBytes` of it. Failures are thrown as
/// std::system_error.
[[nodiscard]] FileContent readFile(const std::filesystem::path& path, std::size_t mostBytes);

} // namespace platform::linux_host
