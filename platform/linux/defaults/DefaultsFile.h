#pragma once

#include "platform/UserDefaults.h"
#include "platform/linux/defaults/JsonObject.h"
#include "platform/linux/files/FileIdentity.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <system_error>

namespace platform::linux_host {

using DefaultsValues = std::map<std::string, DefaultsValue, std::less<>>;

/// The stored settings: a file with one JSON object. What must be known to set it right is logged,
/// once. docs/settings-file.md says what a user may expect of it.
class DefaultsFile {
  public:
    /// Values by key. A value that no setting can be is there, but empty.
    using Values = std::map<std::string, std::optional<DefaultsValue>, std::less<>>;

    /// A longer file is not read: it is none of ours, and reading must not take time.
    static constexpr std::size_t mostBytes = 1 << 20;

    /// No path, no file: nothing is stored, and nothing can be.
    explicit DefaultsFile(std::filesystem::path path) : path_(std::move(path)) {}

    /// What the file says now; nothing when it cannot be read or understood. Costs one system call
    /// when the file has not changed. Borrowed until the next call on this object.
    [[nodiscard]] const Values& values();

    /// Puts the changes into the file, beside what is in it now. False when that is not possible:
    /// what was stored is then stored as before.
    bool store(const DefaultsValues& changes);

  private:
    enum class State { absent, understood, malformed, unreadable };

    void refresh();
    void load(const struct stat& status);
    void adopt(JsonObject object, const FileIdentity& identity);
    void lose(std::error_code error);
    void forget(State state);
    void keepIdentity(const FileIdentity& identity);
    void replace(const std::filesystem::path& target, const DefaultsValues& changes);

    std::filesystem::path path_;
    State state_ = State::absent;
    /// Of the content that was read last; empty when it has to be read again.
    std::optional<FileIdentity> identity_;
    /// What was understood of it: nothing in any other state.
    JsonObject object_;
    Values values_;
};

} // namespace platform::linux_host
