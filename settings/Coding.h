#pragma once

#include "settings/KeyCombo.h"
#include "settings/ScreenCorner.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

/// The JSON forms of the value types that are stored or exchanged, as UTF-8 bytes.
///
/// A `KeyCombo` is an object whose members "keyCode" and "modifiers" are integers in 0 to
/// 4294967295; it is written in this order without spaces. Other members are ignored. A
/// `ScreenCorner` is a string, its raw value.
namespace coding {

[[nodiscard]] std::vector<std::uint8_t> encode(const KeyCombo& combo);
[[nodiscard]] std::vector<std::uint8_t> encode(ScreenCorner corner);

/// Empty when the bytes are not JSON or not of the form above; decoding is all or nothing.
[[nodiscard]] std::optional<KeyCombo> decodeKeyCombo(std::span<const std::uint8_t> bytes);
[[nodiscard]] std::optional<ScreenCorner> decodeScreenCorner(std::span<const std::uint8_t> bytes);

} // namespace coding
