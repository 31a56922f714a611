#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Numbers as text, with a decimal point whatever the locale: the toolkit calls setlocale.
namespace platform::linux_host {

/// Whether the whole text is a number as JSON writes them, of whatever size.
[[nodiscard]] bool isJsonNumber(std::string_view text);

/// The decimal integer that is the whole text; empty for anything else, or when it does not fit.
[[nodiscard]] std::optional<std::int64_t> integerFrom(std::string_view text);

/// The decimal number at the beginning of the text, after white space; 0 when there is none. One
/// that is too large is infinite, one that is too small is 0.
[[nodiscard]] double decimalFrom(std::string_view text);

/// The decimal integer at the beginning of the text, after white space; 0 when there is none. The
/// nearest that there is when it does not fit.
[[nodiscard]] std::int64_t leadingIntegerFrom(std::string_view text);

/// The shortest text that reads back as the same finite number, and that no integer has.
[[nodiscard]] std::string textFrom(double number);

[[nodiscard]] std::string textFrom(std::int64_t number);

} // namespace platform::linux_host
