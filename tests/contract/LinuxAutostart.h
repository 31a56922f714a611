#pragma once

#include <filesystem>
#include <string>

namespace contract {

/// The entries that have the desktops start programs at login, as another program reads and writes
/// them.
class LinuxAutostart {
  public:
    /// The user's configuration folder, and a folder of entries for all users.
    LinuxAutostart(std::filesystem::path configuration, std::filesystem::path allUsers);

    [[nodiscard]] bool startsThisProgram() const;
    void turnOff() const;

    /// Has the entries be such that nobody can change them, not even root. An entry that is there
    /// becomes one for all users.
    void lose() const;

  private:
    [[nodiscard]] std::string effectiveEntry() const;

    std::filesystem::path user_;
    std::filesystem::path allUsers_;
};

} // namespace contract
