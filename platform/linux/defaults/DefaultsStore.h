#pragma once

#include "platform/linux/defaults/DefaultsFile.h"

#include <string_view>

namespace platform::linux_host {

/// The settings of one user in three layers: changes that could not be stored, then what the file
/// says, then the registered defaults.
class DefaultsStore {
  public:
    /// Without a path, changes are kept in memory alone.
    explicit DefaultsStore(std::filesystem::path file) : file_(std::move(file)) {}

    /// Adds values for keys that are not stored.
    void registerDefaults(DefaultsValues values);

    /// The value of the key; null when there is none, or when the file holds something else than a
    /// setting there. Costs one system call when the file has not changed, and does not allocate.
    /// Borrowed until the next call on this object.
    [[nodiscard]] const DefaultsValue* valueForKey(std::string_view key);

    /// Stores the value, with all that could not be stored before. When it cannot be stored either,
    /// it is kept for the rest of the run.
    void setValue(DefaultsValue value, std::string_view key);

  private:
    [[nodiscard]] bool isStored(const DefaultsValue& value, std::string_view key);

    DefaultsFile file_;
    DefaultsValues unsaved_;
    DefaultsValues registered_;
};

} // namespace platform::linux_host
