#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace platform {

using Data = std::vector<std::uint8_t>;
using StringArray = std::vector<std::string>;

/// A value that can be stored under a key. Its type is stored with it.
using DefaultsValue = std::variant<bool, std::int64_t, double, std::string, Data, StringArray>;

/// The user's settings. Every read asks the store, so a write by anyone is seen by the next read.
/// No call fails: a store that cannot be read is empty, and a value that cannot be written is kept
/// for the rest of the run. Stands for NSUserDefaults on macOS, and on Linux for the JSON file
/// `$XDG_CONFIG_HOME/quellbar/defaults.json`. Main thread only.
class UserDefaults {
  public:
    /// The settings of the current user; lives until the process ends.
    static UserDefaults& standard();

    /// Adds answers for keys that are not stored. Kept in memory only, never written.
    void registerDefaults(std::map<std::string, DefaultsValue, std::less<>> values);

    /// True for true, for numbers other than zero and for the texts "yes", "true" and "1" in any
    /// case; false for everything else and for a missing key.
    [[nodiscard]] bool boolForKey(std::string_view key) const;

    /// The number, also from a boolean (1 or 0) or from text that begins with one; 0 for everything
    /// else and for a missing key. A number whose stored text is out of range reads as infinite.
    [[nodiscard]] double doubleForKey(std::string_view key) const;

    /// The bytes, or null when there is no value or it is not data. Borrowed: good until the next
    /// call on this object.
    [[nodiscard]] const Data* dataForKey(std::string_view key) const;

    /// The strings, or null when there is no value, it is not an array, or any element is not a
    /// string. Borrowed: good until the next call on this object.
    [[nodiscard]] const StringArray* stringArrayForKey(std::string_view key) const;

    void setBool(bool value, std::string_view key);
    void setDouble(double value, std::string_view key);
    void setObject(DefaultsValue value, std::string_view key);

    UserDefaults(const UserDefaults&) = delete;
    UserDefaults& operator=(const UserDefaults&) = delete;

  private:
    UserDefaults() = default;
    ~UserDefaults() = default;
};

} // namespace platform
