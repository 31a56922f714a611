#pragma once

#include <filesystem>
#include <string_view>

namespace platform::linux_host {

/// The file that this process runs, without symbolic links. What comes with the program lies beside
/// it. Empty when the system does not tell.
[[nodiscard]] std::filesystem::path runningExecutable();

/// The file that starts this program: its executable or, inside an AppImage, the image, since what
/// it is mounted on goes away with it. Without symbolic links. Empty when the system does not tell.
[[nodiscard]] std::filesystem::path ownExecutable();

/// The file that a shell would start for the name or path of a program, without symbolic links;
/// empty when there is none. `searchPath` is what PATH holds.
[[nodiscard]] std::filesystem::path findProgram(std::string_view program,
                                                std::string_view searchPath);

/// What to call the file so that it is found at the next login: its bare name where PATH leads to
/// it, so that it may move between the folders of PATH, else its path.
[[nodiscard]] std::filesystem::path commandFor(const std::filesystem::path& executable,
                                               std::string_view searchPath);

} // namespace platform::linux_host
