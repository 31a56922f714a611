#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace platform::linux_host {

/// The bytes as text in the standard alphabet of base 64, padded with `=`.
[[nodiscard]] std::string base64Encoded(std::span<const std::uint8_t> bytes);

/// The bytes of such a text; empty when it holds anything else, line breaks and spaces included.
[[nodiscard]] std::optional<std::vector<std::uint8_t>> base64Decoded(std::string_view text);

} // namespace platform::linux_host
