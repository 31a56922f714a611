#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

/// The files in which the desktops describe programs, as freedesktop.org has agreed on them.
namespace platform::linux_host {

/// The group "[Desktop Entry]" of such a file.
class DesktopEntry {
  public:
    /// Reads what can be read: lines that the format does not know are passed over.
    explicit DesktopEntry(std::string_view text);

    /// The value of a key, its escapes undone; null when the key is missing.
    [[nodiscard]] std::optional<std::string> string(std::string_view key) const;

    /// Whether the key has the value.
    [[nodiscard]] bool has(std::string_view key, std::string_view value) const;

  private:
    void readLine(std::string_view line, bool isInGroup);

    std::map<std::string, std::string, std::less<>> values_;
};

} // namespace platform::linux_host
