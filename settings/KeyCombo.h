#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Modifier bits of `KeyCombo::modifiers`: the Carbon Event Manager's constants.
inline constexpr std::uint32_t cmdKey = 0x0100;
inline constexpr std::uint32_t shiftKey = 0x0200;
inline constexpr std::uint32_t optionKey = 0x0800;
inline constexpr std::uint32_t controlKey = 0x1000;

/// A keyboard shortcut: one key, by its position, and the modifier keys held with it.
struct KeyCombo {
    /// Virtual key code, independent of the keyboard layout.
    std::uint32_t keyCode = 0;
    /// Mask of the modifier bits above. Other bits are kept, but have no symbol.
    std::uint32_t modifiers = 0;

    bool operator==(const KeyCombo&) const = default;

    /// The combination as a person reads it, for example "⌥⌘M".
    [[nodiscard]] std::string displayString() const;

    /// The name of one key on the US ANSI layout; "?" for a key without a name.
    [[nodiscard]] static std::string_view characterFor(std::uint32_t keyCode);
};
