#include "platform/linux/defaults/DefaultsCoercion.h"

#include "platform/linux/defaults/NumberText.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace platform::linux_host {
namespace {

char lowercase(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool equalsIgnoringCase(std::string_view text, std::string_view lowercaseWord) {
    return std::ranges::equal(text, lowercaseWord, {}, lowercase);
}

struct BoolReader {
    bool operator()(bool value) const { return value; }
    bool operator()(std::int64_t value) const { return value != 0; }
    bool operator()(double value) const { return value != 0; }
    bool operator()(const std::string& value) const {
        static constexpr std::array<std::string_view, 3> words{"yes", "true", "1"};
        return std::ranges::any_of(
            words, [&value](std::string_view word) { return equalsIgnoringCase(value, word); });
    }
    bool operator()(const Data&) const { return false; }
    bool operator()(const StringArray&) const { return false; }
};

struct DoubleReader {
    double operator()(bool value) const { return value ? 1 : 0; }
    double operator()(std::int64_t value) const { return static_cast<double>(value); }
    double operator()(double value) const { return value; }
    double operator()(const std::string& value) const { return decimalFrom(value); }
    double operator()(const Data&) const { return 0; }
    double operator()(const StringArray&) const { return 0; }
};

} // namespace

bool boolFrom(const DefaultsValue* value) {
    return value != nullptr && std::visit(BoolReader{}, *value);
}

double doubleFrom(const DefaultsValue* value) {
    return value == nullptr ? 0 : std::visit(DoubleReader{}, *value);
}

} // namespace platform::linux_host
