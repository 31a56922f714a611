#include "platform/linux/loginitem/DesktopEntry.h"

namespace platform::linux_host {
namespace {

constexpr std::string_view blanks = " \t\r";

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string_view takeLine(std::string_view& text) {
    const std::size_t end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return trimmed(line);
}

std::optional<char> meaningOf(char escaped) {
    switch (escaped) {
    case 's':
        return ' ';
    case 'n':
        return '\n';
    case 't':
        return '\t';
    case 'r':
        return '\r';
    case '\\':
        return '\\';
    default:
        return std::nullopt;
    }
}

// An escape that means nothing is kept as it is, backslash and all.
std::string unescaped(std::string_view text) {
    std::string value;
    for (std::size_t index = 0; index < text.size(); ++index) {
        const bool isEscape = text[index] == '\\' && index + 1 < text.size();
        const auto meaning = isEscape ? meaningOf(text[index + 1]) : std::nullopt;
        value.push_back(meaning.value_or(text[index]));
        if (meaning) {
            ++index;
        }
    }
    return value;
}

} // namespace

DesktopEntry::DesktopEntry(std::string_view text) {
    bool isInGroup = false;
    while (!text.empty()) {
        const std::string_view line = takeLine(text);
        if (line.starts_with('[')) {
            isInGroup = line == "[Desktop Entry]";
        } else {
            readLine(line, isInGroup);
        }
    }
}

void DesktopEntry::readLine(std::string_view line, bool isInGroup) {
    const std::size_t equals = line.find('=');
    if (!isInGroup || line.starts_with('#') || equals == std::string_view::npos) {
        return;
    }
    values_.insert_or_assign(std::string(trimmed(line.substr(0, equals))),
                             unescaped(trimmed(line.substr(equals + 1))));
}

std::optional<std::string> DesktopEntry::string(std::string_view key) const {
    const auto found = values_.find(key);
    return found == values_.end() ? std::nullopt : std::optional(found->second);
}

bool DesktopEntry::has(std::string_view key, std::string_view value) const {
    const auto found = values_.find(key);
    return found != values_.end() && found->second == value;
}

} // namespace platform::linux_host
