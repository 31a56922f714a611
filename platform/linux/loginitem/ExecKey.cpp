#include "platform/linux/loginitem/ExecKey.h"

#include <algorithm>

namespace platform::linux_host {
namespace {

constexpr std::string_view blanks = " \t\n";

// Escaped as freedesktop.org has it, dex leaves all of these but ' as they are written, and systemd
// 252 all of them, even an executable's '. GLib undoes them.
constexpr std::string_view launchersDisagreeOn = "%\"'`$\\";

std::string quotedPart(std::string_view text) {
    std::string part;
    for (std::size_t index = 0; index < text.size() && text[index] != '"'; ++index) {
        const bool isEscape = text[index] == '\\' && index + 1 < text.size();
        if (isEscape) {
            ++index;
        }
        part.push_back(text[index]);
    }
    return part;
}

} // namespace

// The value would lose a blank at its end in the key TryExec, which knows no quotes.
bool canBeExec(std::string_view program) {
    const auto cannotBeUsed = [](char character) {
        const auto byte = static_cast<unsigned char>(character);
        return byte < 0x20 || byte == 0x7f ||
               launchersDisagreeOn.find(character) != std::string_view::npos;
    };
    return !program.empty() && !program.ends_with(' ') &&
           std::ranges::none_of(program, cannotBeUsed);
}

std::string programOf(std::string_view exec) {
    exec.remove_prefix(std::min(exec.find_first_not_of(blanks), exec.size()));
    if (exec.starts_with('"')) {
        return quotedPart(exec.substr(1));
    }
    return std::string(exec.substr(0, exec.find_first_of(blanks)));
}

} // namespace platform::linux_host
