#pragma once

#include "platform/LoginItem.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace platform::linux_host {

class DesktopEntry;

/// Where the desktops look for what to start at login. An entry hides those of the same file name
/// in the folders after it.
struct AutostartFolders {
    std::filesystem::path user; ///< empty when the user has no configuration folder
    std::vector<std::filesystem::path> system;
};

/// The folders, as the environment of this process names them.
[[nodiscard]] AutostartFolders autostartFolders();

/// Who is to be started.
struct Launcher {
    std::filesystem::path executable; ///< absolute, without symbolic links
    std::string searchPath;           ///< what PATH holds
};

/// The entry that has the desktops start this program at login. Keeps nothing: the files are the
/// state.
class Autostart {
  public:
    Autostart(AutostartFolders folders, Launcher launcher)
        : folders_(std::move(folders)), launcher_(std::move(launcher)) {}

    /// Enabled when the entry that counts starts this executable; "requires approval" when that
    /// entry is there but turned off, as the desktops' own settings leave it, wherever it points;
    /// "not registered" when there is none or it starts something else, as after a move.
    [[nodiscard]] LoginItemStatus status() const;

    /// Writes the user's entry, in place of whatever is there. Throws std::runtime_error.
    void enable() const;

    /// Removes the user's entry; one for all users is hidden by one that is turned off. Throws
    /// std::system_error.
    void disable() const;

    /// The user's entry, there or not.
    [[nodiscard]] std::filesystem::path userFile() const;

  private:
    [[nodiscard]] std::optional<DesktopEntry> effectiveEntry() const;
    [[nodiscard]] bool startsThisProgram(const DesktopEntry& entry) const;
    [[nodiscard]] bool isThereForAllUsers() const;
    [[nodiscard]] std::string text() const;
    void write(const std::string& text) const;

    AutostartFolders folders_;
    Launcher launcher_;
};

} // namespace platform::linux_host
