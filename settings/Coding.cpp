#include "settings/Coding.h"

#include <nlohmann/json.hpp>

#include <cmath>
#include <limits>

namespace coding {
namespace {

using nlohmann::json;
using nlohmann::ordered_json;

constexpr auto keyCodeKey = "keyCode";
constexpr auto modifiersKey = "modifiers";

std::vector<std::uint8_t> bytesOf(const ordered_json& value) {
    const std::string text = value.dump();
    return {text.begin(), text.end()};
}

json parsed(std::span<const std::uint8_t> bytes) {
    return json::parse(bytes.begin(), bytes.end(), nullptr, /*allow_exceptions=*/false);
}

// JSON has one kind of number: 46 and 46.0 are the same integer, 46.5 is none.
std::optional<std::uint32_t> unsigned32(const json& value) {
    if (!value.is_number()) {
        return std::nullopt;
    }
    const auto number = value.get<double>();
    const bool isInRange = number >= 0 && number <= std::numeric_limits<std::uint32_t>::max();
    if (!isInRange || std::trunc(number) != number) {
        return std::nullopt;
    }
    return static_cast<std::uint32_t>(number);
}

std::optional<std::uint32_t> unsigned32Member(const json& object, const char* key) {
    const auto member = object.find(key);
    return member == object.end() ? std::nullopt : unsigned32(*member);
}

} // namespace

std::vector<std::uint8_t> encode(const KeyCombo& combo) {
    return bytesOf({{keyCodeKey, combo.keyCode}, {modifiersKey, combo.modifiers}});
}

std::vector<std::uint8_t> encode(ScreenCorner corner) {
    return bytesOf(ordered_json(rawValue(corner)));
}

std::optional<KeyCombo> decodeKeyCombo(std::span<const std::uint8_t> bytes) {
    const json object = parsed(bytes);
    if (!object.is_object()) {
        return std::nullopt;
    }
    const auto keyCode = unsigned32Member(object, keyCodeKey);
    const auto modifiers = unsigned32Member(object, modifiersKey);
    if (!keyCode || !modifiers) {
        return std::nullopt;
    }
    return KeyCombo{*keyCode, *modifiers};
}

std::optional<ScreenCorner> decodeScreenCorner(std::span<const std::uint8_t> bytes) {
    const json value = parsed(bytes);
    const auto* const name = value.get_ptr<const json::string_t*>();
    return name == nullptr ? std::nullopt : screenCornerFromRawValue(*name);
}

} // namespace coding
