#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform::linux_host {

/// A JSON object as the text that it is. A change touches the text of one member and nothing else,
/// so order, spacing, digits and whatever is not understood stay as somebody wrote them.
class JsonObject {
  public:
    struct Member {
        std::string name;
        std::size_t valueBegin = 0; ///< in the object's text
        std::size_t valueEnd = 0;
    };

    /// The object without members.
    JsonObject() : text_("{\n}\n") {}

    /// Empty when the text is anything but one JSON object in UTF-8.
    [[nodiscard]] static std::optional<JsonObject> parse(std::string text);

    [[nodiscard]] const std::string& text() const { return text_; }

    /// In the order of the text. Of members with the same name, the last is the one that counts.
    [[nodiscard]] const std::vector<Member>& members() const { return members_; }

    /// The JSON text of the member's value.
    [[nodiscard]] std::string_view valueOf(const Member& member) const;

    /// Replaces the value that counts under this name, or adds a member behind the last one.
    /// `value` is valid JSON text.
    void set(std::string_view name, std::string_view value);

  private:
    std::string text_;
    std::vector<Member> members_;
};

/// The JSON text of a string. Bytes that are not UTF-8 become replacement characters.
[[nodiscard]] std::string jsonString(std::string_view text);

} // namespace platform::linux_host
