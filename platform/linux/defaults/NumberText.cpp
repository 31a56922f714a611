#include "platform/linux/defaults/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <clocale>
#include <cstdlib>
#include <limits>

namespace platform::linux_host {
namespace {

constexpr std::string_view digits = "0123456789";

template <typename Number>
std::string shortestText(Number number) {
    std::array<char, 32> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
    return {buffer.data(), result.ptr};
}

std::string_view withoutLeading(std::string_view text, std::string_view characters) {
    return text.substr(std::min(text.size(), text.find_first_not_of(characters)));
}

std::size_t takeDigits(std::string_view& text) {
    const std::string_view rest = withoutLeading(text, digits);
    const std::size_t count = text.size() - rest.size();
    text = rest;
    return count;
}

bool takeOneOf(std::string_view& text, std::string_view characters) {
    const bool isNext = !text.empty() && characters.find(text.front()) != std::string_view::npos;
    text.remove_prefix(isNext ? 1 : 0);
    return isNext;
}

// Without white space, and without a plus, which from_chars would not take.
std::string_view fromSignOn(std::string_view text) {
    text = withoutLeading(text, " \t\r\n");
    if (text.starts_with('+') && !text.starts_with("+-")) {
        text.remove_prefix(1);
    }
    return text;
}

// Words such as "inf" and "nan", which from_chars would take, are no decimal numbers.
bool beginsWithDecimal(std::string_view text) {
    takeOneOf(text, "-");
    return takeOneOf(text, digits) || takeOneOf(text, ".");
}

// Too large and too small are one error to from_chars; only the older function tells them apart.
double limitOf(std::string_view text) {
    static const locale_t locale = ::newlocale(LC_ALL_MASK, "C", nullptr);
    return ::strtod_l(std::string(text).c_str(), nullptr, locale);
}

} // namespace

bool isJsonNumber(std::string_view text) {
    takeOneOf(text, "-");
    const bool hasLeadingZero = text.starts_with('0');
    const std::size_t count = takeDigits(text);
    if (count == 0 || (hasLeadingZero && count > 1)) {
        return false;
    }
    if (takeOneOf(text, ".") && takeDigits(text) == 0) {
        return false;
    }
    if (takeOneOf(text, "eE")) {
        takeOneOf(text, "+-");
        return takeDigits(text) > 0 && text.empty();
    }
    return text.empty();
}

std::optional<std::int64_t> integerFrom(std::string_view text) {
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isWhole = error == std::errc{} && end == text.data() + text.size();
    return isWhole ? std::optional(number) : std::nullopt;
}

double decimalFrom(std::string_view text) {
    text = fromSignOn(text);
    if (!beginsWithDecimal(text)) {
        return 0;
    }
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc::result_out_of_range ? limitOf(text) : number;
}

std::int64_t leadingIntegerFrom(std::string_view text) {
    using Limits = std::numeric_limits<std::int64_t>;
    text = fromSignOn(text);
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error == std::errc::result_out_of_range) {
        return text.starts_with('-') ? Limits::min() : Limits::max();
    }
    return number;
}

std::string textFrom(double number) {
    std::string text = shortestText(number);
    if (text.find_first_of(".e") == std::string::npos) {
        text += ".0";
    }
    return text;
}

std::string textFrom(std::int64_t number) {
    return shortestText(number);
}

} // namespace platform::linux_host
