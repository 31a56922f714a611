#include "platform/linux/defaults/Base64.h"

#include <algorithm>

namespace platform::linux_host {
namespace {

constexpr std::string_view alphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::size_t groupBytes = 3;
constexpr std::size_t groupLetters = 4;

void appendGroup(std::string& text, std::span<const std::uint8_t> bytes) {
    std::uint32_t bits = 0;
    for (std::size_t index = 0; index < groupBytes; ++index) {
        bits = bits << 8 | (index < bytes.size() ? bytes[index] : 0U);
    }
    for (std::size_t index = 0; index < groupLetters; ++index) {
        const std::size_t shift = 6 * (groupLetters - 1 - index);
        text.push_back(index <= bytes.size() ? alphabet[bits >> shift & 0x3f] : '=');
    }
}

std::string_view withoutPadding(std::string_view text) {
    for (int count = 0; count < 2 && text.ends_with('='); ++count) {
        text.remove_suffix(1);
    }
    return text;
}

} // namespace

std::string base64Encoded(std::span<const std::uint8_t> bytes) {
    std::string text;
    text.reserve((bytes.size() + groupBytes - 1) / groupBytes * groupLetters);
    while (!bytes.empty()) {
        const auto group = bytes.first(std::min(groupBytes, bytes.size()));
        appendGroup(text, group);
        bytes = bytes.subspan(group.size());
    }
    return text;
}

std::optional<std::vector<std::uint8_t>> base64Decoded(std::string_view text) {
    if (text.size() % groupLetters != 0) {
        return std::nullopt;
    }
    std::vector<std::uint8_t> bytes;
    std::uint32_t bits = 0;
    unsigned bitCount = 0;
    for (const char letter : withoutPadding(text)) {
        const auto value = alphabet.find(letter);
        if (value == std::string_view::npos) {
            return std::nullopt;
        }
        bits = (bits << 6 | static_cast<std::uint32_t>(value)) & 0xffff;
        bitCount += 6;
        if (bitCount >= 8) {
            bitCount -= 8;
            bytes.push_back(static_cast<std::uint8_t>(bits >> bitCount & 0xff));
        }
    }
    return bytes;
}

} // namespace platform::linux_host
