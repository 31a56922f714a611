#include "platform/linux/defaults/PropertyList.h"

#include "platform/linux/defaults/Base64.h"
#include "platform/linux/defaults/JsonObject.h"
#include "platform/linux/defaults/NumberText.h"

#include <nlohmann/json.hpp>

#include <array>
#include <cmath>
#include <limits>
#include <utility>

namespace platform::linux_host {
namespace {

using nlohmann::json;

constexpr auto dataTag = "data";
constexpr auto doubleTag = "double";

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

std::string tagged(std::string_view tag, std::string_view text) {
    return "{" + jsonString(tag) + ": " + jsonString(text) + "}";
}

std::string_view nameOfNonFinite(double number) {
    if (std::isnan(number)) {
        return "nan";
    }
    return number > 0 ? "inf" : "-inf";
}

struct JsonWriter {
    std::string operator()(bool value) const { return value ? "true" : "false"; }
    std::string operator()(std::int64_t value) const { return textFrom(value); }
    std::string operator()(double value) const {
        return std::isfinite(value) ? textFrom(value) : tagged(doubleTag, nameOfNonFinite(value));
    }
    std::string operator()(const std::string& value) const { return jsonString(value); }
    std::string operator()(const Data& value) const {
        return tagged(dataTag, base64Encoded(value));
    }
    std::string operator()(const StringArray& value) const {
        std::string text;
        for (const std::string& element : value) {
            text.append(text.empty() ? "" : ", ").append(jsonString(element));
        }
        return "[" + text + "]";
    }
};

std::optional<DefaultsValue> numberFrom(std::string_view text) {
    if (const auto integer = integerFrom(text)) {
        return *integer;
    }
    return decimalFrom(text);
}

std::optional<DefaultsValue> nonFiniteFrom(std::string_view name) {
    for (const double number : {infinity, -infinity, notANumber}) {
        if (name == nameOfNonFinite(number)) {
            return number;
        }
    }
    return std::nullopt;
}

std::optional<DefaultsValue> dataFrom(std::string_view text) {
    auto bytes = base64Decoded(text);
    return bytes ? std::optional<DefaultsValue>(*std::move(bytes)) : std::nullopt;
}

std::optional<DefaultsValue> taggedFrom(const json& object) {
    if (object.size() != 1 || !object.front().is_string()) {
        return std::nullopt;
    }
    const std::string& tag = object.begin().key();
    const auto& text = object.front().get_ref<const std::string&>();
    if (tag == dataTag) {
        return dataFrom(text);
    }
    return tag == doubleTag ? nonFiniteFrom(text) : std::nullopt;
}

std::optional<DefaultsValue> arrayFrom(const json& array) {
    StringArray strings;
    for (const json& element : array) {
        if (!element.is_string()) {
            return std::nullopt;
        }
        strings.push_back(element.get<std::string>());
    }
    return strings;
}

} // namespace

std::string jsonFrom(const DefaultsValue& value) {
    return std::visit(JsonWriter{}, value);
}

std::optional<DefaultsValue> defaultsValueFrom(std::string_view text) {
    // Numbers are not left to the library, which reads them by the locale.
    if (isJsonNumber(text)) {
        return numberFrom(text);
    }
    const json value = json::parse(text.begin(), text.end());
    switch (value.type()) {
    case json::value_t::boolean:
        return value.get<bool>();
    case json::value_t::string:
        return value.get<std::string>();
    case json::value_t::array:
        return arrayFrom(value);
    case json::value_t::object:
        return taggedFrom(value);
    default:
        return std::nullopt;
    }
}

} // namespace platform::linux_host
