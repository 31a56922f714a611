#pragma once

#include <string>
#include <string_view>

namespace desktop {

/// Bytes as the settings file stores them: in the standard alphabet of base 64, padded.
[[nodiscard]] std::string base64Of(std::string_view bytes);

/// The bytes of such a text, which has to be well-formed.
[[nodiscard]] std::string bytesOf(std::string_view base64);

} // namespace desktop
