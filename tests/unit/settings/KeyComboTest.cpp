#include "settings/KeyCombo.h"

#include <gtest/gtest.h>

#include <map>

namespace {

static_assert(cmdKey == 0x0100);
static_assert(shiftKey == 0x0200);
static_assert(optionKey == 0x0800);
static_assert(controlKey == 0x1000);

const std::map<std::uint32_t, std::string_view> names{
    {0, "A"},  {11, "B"}, {8, "C"},  {2, "D"},  {14, "E"},     {3, "F"},  {5, "G"},  {4, "H"},
    {34, "I"}, {38, "J"}, {40, "K"}, {37, "L"}, {46, "M"},     {45, "N"}, {31, "O"}, {35, "P"},
    {12, "Q"}, {15, "R"}, {1, "S"},  {17, "T"}, {32, "U"},     {9, "V"},  {13, "W"}, {7, "X"},
    {16, "Y"}, {6, "Z"},  {29, "0"}, {18, "1"}, {19, "2"},     {20, "3"}, {21, "4"}, {23, "5"},
    {22, "6"}, {26, "7"}, {28, "8"}, {25, "9"}, {49, "Space"},
};

std::string display(std::uint32_t keyCode, std::uint32_t modifiers) {
    return KeyCombo{keyCode, modifiers}.displayString();
}

TEST(KeyCombo, ThirtySevenKeysHaveNames) {
    EXPECT_EQ(names.size(), 37U);
    for (const auto& [keyCode, name] : names) {
        EXPECT_EQ(KeyCombo::characterFor(keyCode), name) << keyCode;
    }
}

TEST(KeyCombo, EveryOtherKeyIsAQuestionMark) {
    for (std::uint32_t keyCode = 0; keyCode <= 0x10000; ++keyCode) {
        if (!names.contains(keyCode)) {
            EXPECT_EQ(KeyCombo::characterFor(keyCode), "?") << keyCode;
        }
    }
    EXPECT_EQ(KeyCombo::characterFor(0xFFFFFFFF), "?");
    EXPECT_EQ(KeyCombo::characterFor(0x80000000), "?");
}

TEST(KeyCombo, EachModifierHasItsSymbol) {
    EXPECT_EQ(display(0, 0), "A");
    EXPECT_EQ(display(0, cmdKey), "\u2318A");
    EXPECT_EQ(display(0, shiftKey), "\u21E7A");
    EXPECT_EQ(display(0, optionKey), "\u2325A");
    EXPECT_EQ(display(0, controlKey), "\u2303A");
}

TEST(KeyCombo, SymbolsStandInTheOrderControlOptionShiftCommand) {
    EXPECT_EQ(display(0, controlKey | optionKey), "⌃⌥A");
    EXPECT_EQ(display(0, controlKey | shiftKey), "⌃⇧A");
    EXPECT_EQ(display(0, controlKey | cmdKey), "⌃⌘A");
    EXPECT_EQ(display(0, optionKey | shiftKey), "⌥⇧A");
    EXPECT_EQ(display(0, optionKey | cmdKey), "⌥⌘A");
    EXPECT_EQ(display(0, shiftKey | cmdKey), "⇧⌘A");
    EXPECT_EQ(display(49, 0x1B00), "⌃⌥⇧⌘Space");
}

TEST(KeyCombo, TheDefaultShortcutReadsOptionCommandM) {
    EXPECT_EQ(display(46, 0x900), "⌥⌘M");
}

TEST(KeyCombo, AKeyWithoutANameIsShownWithItsModifiers) {
    EXPECT_EQ(display(53, cmdKey), "⌘?");
    EXPECT_EQ(display(53, 0), "?");
}

TEST(KeyCombo, ABitThatIsNoneOfTheFourIsKeptAndHasNoSymbol) {
    const KeyCombo combo{0, 0x0400};
    EXPECT_EQ(combo.displayString(), "A");
    EXPECT_EQ(combo.modifiers, 0x0400U);
    EXPECT_EQ(display(0, ~(cmdKey | shiftKey | optionKey | controlKey)), "A");
}

TEST(KeyCombo, IsEqualWhenKeyAndModifiersAre) {
    EXPECT_EQ((KeyCombo{12, cmdKey}), (KeyCombo{12, cmdKey}));
    EXPECT_NE((KeyCombo{12, cmdKey}), (KeyCombo{12, shiftKey}));
    EXPECT_NE((KeyCombo{12, cmdKey}), (KeyCombo{13, cmdKey}));
    EXPECT_NE((KeyCombo{12, 0}), (KeyCombo{12, 0x0400}));
}

} // namespace
