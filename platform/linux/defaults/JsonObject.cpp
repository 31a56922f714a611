#include "platform/linux/defaults/JsonObject.h"

#include "platform/linux/defaults/NumberText.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace platform::linux_host {
namespace {

using nlohmann::json;

constexpr std::string_view byteOrderMark = "\xef\xbb\xbf";
constexpr std::string_view whiteSpace = " \t\n\r";

/// Cuts the text of an object into pieces. It looks at quotes, brackets and commas alone: whether a
/// piece is valid is for the caller to ask.
class Scanner {
  public:
    explicit Scanner(std::string_view text) : text_(text) {
        if (text_.starts_with(byteOrderMark)) {
            position_ = byteOrderMark.size();
        }
    }

    [[nodiscard]] std::size_t position() const { return position_; }
    [[nodiscard]] bool isAtEnd() const { return position_ == text_.size(); }

    void skipWhiteSpace() {
        position_ = std::min(text_.find_first_not_of(whiteSpace, position_), text_.size());
    }

    /// Whether this is the next character; then it is passed.
    bool take(char expected) {
        const bool isNext = !isAtEnd() && text_[position_] == expected;
        position_ += isNext ? 1 : 0;
        return isNext;
    }

    /// The string that begins here, with its quotes.
    std::string_view takeString() {
        const std::size_t begin = position_;
        bool isEscaped = false;
        for (bool isInside = take('"'); isInside && !isAtEnd(); ++position_) {
            isInside = isEscaped || text_[position_] != '"';
            isEscaped = !isEscaped && text_[position_] == '\\';
        }
        return text_.substr(begin, position_ - begin);
    }

    /// The value that begins here, up to the comma, bracket or space behind it.
    std::string_view takeValue() {
        const std::size_t begin = position_;
        for (std::size_t depth = 0; !isAtEnd() && !isBehindValue(depth);) {
            takePart(depth);
        }
        return text_.substr(begin, position_ - begin);
    }

  private:
    [[nodiscard]] bool isNextOneOf(std::string_view characters) const {
        return characters.find(text_[position_]) != std::string_view::npos;
    }

    [[nodiscard]] bool isBehindValue(std::size_t depth) const {
        return depth == 0 && (isNextOneOf(",]}") || isNextOneOf(whiteSpace));
    }

    void takePart(std::size_t& depth) {
        if (isNextOneOf("\"")) {
            takeString();
            return;
        }
        if (isNextOneOf("[{")) {
            ++depth;
        } else if (isNextOneOf("]}")) {
            --depth;
        }
        ++position_;
    }

    std::string_view text_;
    std::size_t position_ = 0;
};

// The library passes over a byte order mark, which belongs at the beginning of a file alone.
bool isJson(std::string_view text) {
    return !text.starts_with(byteOrderMark) && json::accept(text.begin(), text.end());
}

// The library refuses the whole text for a number beyond the range of a double. Such a number is
// valid, and reads as infinite.
bool isValue(std::string_view text) {
    return isJson(text) || isJsonNumber(text);
}

std::optional<JsonObject::Member> takeMember(Scanner& scanner) {
    const std::string_view name = scanner.takeString();
    if (!isJson(name)) {
        return std::nullopt;
    }
    scanner.skipWhiteSpace();
    if (!scanner.take(':')) {
        return std::nullopt;
    }
    scanner.skipWhiteSpace();
    const std::size_t begin = scanner.position();
    if (!isValue(scanner.takeValue())) {
        return std::nullopt;
    }
    return JsonObject::Member{json::parse(name).get<std::string>(), begin, scanner.position()};
}

std::optional<std::vector<JsonObject::Member>> takeMembers(Scanner& scanner) {
    std::vector<JsonObject::Member> members;
    scanner.skipWhiteSpace();
    if (scanner.take('}')) {
        return members;
    }
    do {
        scanner.skipWhiteSpace();
        auto member = takeMember(scanner);
        if (!member) {
            return std::nullopt;
        }
        members.push_back(*std::move(member));
        scanner.skipWhiteSpace();
    } while (scanner.take(','));
    return scanner.take('}') ? std::optional(std::move(members)) : std::nullopt;
}

std::optional<std::vector<JsonObject::Member>> membersOf(std::string_view text) {
    Scanner scanner(text);
    scanner.skipWhiteSpace();
    if (!scanner.take('{')) {
        return std::nullopt;
    }
    auto members = takeMembers(scanner);
    scanner.skipWhiteSpace();
    return scanner.isAtEnd() ? members : std::nullopt;
}

std::string memberText(std::string_view name, std::string_view value) {
    return std::string("\n  ").append(jsonString(name)).append(": ").append(value);
}

} // namespace

std::optional<JsonObject> JsonObject::parse(std::string text) {
    // The library takes a zero byte for the end of the text, and would not see what follows.
    if (text.find('\0') != std::string::npos) {
        return std::nullopt;
    }
    auto members = membersOf(text);
    if (!members) {
        return std::nullopt;
    }
    JsonObject object;
    object.text_ = std::move(text);
    object.members_ = *std::move(members);
    return object;
}

std::string_view JsonObject::valueOf(const Member& member) const {
    return std::string_view(text_).substr(member.valueBegin, member.valueEnd - member.valueBegin);
}

void JsonObject::set(std::string_view name, std::string_view value) {
    std::string text = text_;
    const auto member = std::find_if(members_.rbegin(), members_.rend(),
                                     [name](const Member& each) { return each.name == name; });
    if (member != members_.rend()) {
        text.replace(member->valueBegin, member->valueEnd - member->valueBegin, value);
    } else if (members_.empty()) {
        const std::size_t inside = text.find('{') + 1;
        text.replace(inside, text.rfind('}') - inside, memberText(name, value) + "\n");
    } else {
        text.insert(members_.back().valueEnd, "," + memberText(name, value));
    }
    *this = parse(std::move(text)).value();
}

std::string jsonString(std::string_view text) {
    return json(text).dump(-1, ' ', /*ensure_ascii=*/false, json::error_handler_t::replace);
}

} // namespace platform::linux_host
