#pragma once

#include "platform/UserDefaults.h"

#include <optional>
#include <string>
#include <string_view>

/// Settings as JSON texts. Truth values, strings and arrays of strings are themselves; a number
/// with a point or an exponent is a double, and any other that fits an integer; data is
/// {"data": "<base64>"}. JSON has no word for a double that is not finite: it is
/// {"double": "inf"}, "-inf" or "nan".
namespace platform::linux_host {

[[nodiscard]] std::string jsonFrom(const DefaultsValue& value);

/// The text is valid JSON. Empty when it is something that no setting can be.
[[nodiscard]] std::optional<DefaultsValue> defaultsValueFrom(std::string_view text);

} // namespace platform::linux_host
