#include "settings/KeyCombo.h"

#include <algorithm>
#include <array>

namespace {

struct KeyName {
    std::uint32_t keyCode;
    std::string_view name;
};

// Letters, the digits of the main row and the space bar, by position. The active keyboard layout is
// not consulted, and no other key has a name, on purpose: what has no entry is shown as "?".
constexpr std::array<KeyName, 37> keyNames{{
    {0, "A"},  {11, "B"}, {8, "C"},  {2, "D"},  {14, "E"},     {3, "F"},  {5, "G"},  {4, "H"},
    {34, "I"}, {38, "J"}, {40, "K"}, {37, "L"}, {46, "M"},     {45, "N"}, {31, "O"}, {35, "P"},
    {12, "Q"}, {15, "R"}, {1, "S"},  {17, "T"}, {32, "U"},     {9, "V"},  {13, "W"}, {7, "X"},
    {16, "Y"}, {6, "Z"},  {29, "0"}, {18, "1"}, {19, "2"},     {20, "3"}, {21, "4"}, {23, "5"},
    {22, "6"}, {26, "7"}, {28, "8"}, {25, "9"}, {49, "Space"},
}};

struct ModifierSymbol {
    std::uint32_t bit;
    std::string_view symbol;
};

// In the order in which they are shown, whatever the order of pressing.
constexpr std::array<ModifierSymbol, 4> modifierSymbols{{
    {controlKey, "⌃"},
    {optionKey, "⌥"},
    {shiftKey, "⇧"},
    {cmdKey, "⌘"},
}};

} // namespace

std::string KeyCombo::displayString() const {
    std::string text;
    for (const auto& [bit, symbol] : modifierSymbols) {
        if ((modifiers & bit) != 0) {
            text += symbol;
        }
    }
    text += characterFor(keyCode);
    return text;
}

std::string_view KeyCombo::characterFor(std::uint32_t keyCode) {
    const auto* const entry = std::ranges::find(keyNames, keyCode, &KeyName::keyCode);
    return entry == keyNames.end() ? "?" : entry->name;
}
