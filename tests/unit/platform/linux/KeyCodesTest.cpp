#include "platform/linux/keyboard/KeyCodes.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

using platform::linux_host::keysOf;
using platform::linux_host::virtualKeyOf;

constexpr std::uint32_t firstUnusedCode = 0x7F;

std::vector<std::string> namesOf(std::uint32_t virtualKey) {
    std::vector<std::string> names;
    for (const auto& key : keysOf(virtualKey)) {
        names.emplace_back(key.xkbName);
    }
    return names;
}

TEST(KeyCodes, ALetterIsAPositionOnTheKeyboard) {
    ASSERT_EQ(keysOf(46).size(), 1U); // the key of M on the US layout
    EXPECT_EQ(keysOf(46)[0].evdev, 50);
    EXPECT_EQ(keysOf(46)[0].xkbName, "AB07");
}

TEST(KeyCodes, EveryVirtualKeyLeadsToItsKeysAndBack) {
    for (std::uint32_t code = 0; code < firstUnusedCode; ++code) {
        for (const auto& key : keysOf(code)) {
            EXPECT_EQ(key.virtualKey, code);
            EXPECT_EQ(virtualKeyOf(key.evdev), code) << key.xkbName;
        }
    }
}

TEST(KeyCodes, ExactlyTheCodesThatNoKeyHasAreMissing) {
    std::set<std::uint32_t> missing;
    for (std::uint32_t code = 0; code < firstUnusedCode; ++code) {
        if (keysOf(code).empty()) {
            missing.insert(code);
        }
    }
    const std::set<std::uint32_t> unassigned{0x34, 0x42, 0x44, 0x46, 0x4D, 0x6C, 0x70};
    constexpr std::uint32_t functionKey = 0x3F; // has a kernel code that X11 cannot carry
    auto expected = unassigned;
    expected.insert(functionKey);
    EXPECT_EQ(missing, expected);
}

TEST(KeyCodes, NoKeyAndNoNameStandsForTwoCodes) {
    std::set<std::uint16_t> kernelCodes;
    std::set<std::string_view> names;
    std::size_t count = 0;
    for (std::uint32_t code = 0; code < firstUnusedCode; ++code) {
        for (const auto& key : keysOf(code)) {
            kernelCodes.insert(key.evdev);
            names.insert(key.xkbName);
            ++count;
        }
    }
    EXPECT_EQ(kernelCodes.size(), count);
    EXPECT_EQ(names.size(), count);
}

TEST(KeyCodes, ACodeBeyondTheTableHasNoKey) {
    EXPECT_TRUE(keysOf(firstUnusedCode).empty());
    EXPECT_TRUE(keysOf(0x100).empty());
    EXPECT_TRUE(keysOf(UINT32_MAX).empty());
}

TEST(KeyCodes, AKeyThatNoMacHasStandsForNothing) {
    EXPECT_EQ(virtualKeyOf(0), std::nullopt);
    EXPECT_EQ(virtualKeyOf(464), std::nullopt);
    EXPECT_EQ(virtualKeyOf(UINT32_MAX), std::nullopt);
}

TEST(KeyCodes, WhatOnlyOneKindOfKeyboardHasIsSeveralKeysTheMainOneFirst) {
    EXPECT_EQ(namesOf(0x69), (std::vector<std::string>{"FK13", "PRSC"}));
    EXPECT_EQ(namesOf(0x6B), (std::vector<std::string>{"FK14", "SCLK"}));
    EXPECT_EQ(namesOf(0x71), (std::vector<std::string>{"FK15", "PAUS"}));
    EXPECT_EQ(namesOf(0x72), (std::vector<std::string>{"INS", "HELP"}));
    EXPECT_EQ(namesOf(0x5F), (std::vector<std::string>{"KPPT", "JPCM"}));
    EXPECT_EQ(namesOf(0x66), (std::vector<std::string>{"HJCV", "MUHE"}));
    EXPECT_EQ(namesOf(0x68), (std::vector<std::string>{"HNGL", "HENK", "HKTG"}));
}

TEST(KeyCodes, TheTwoKeysThatMacsSwapOnIsoKeyboardsKeepTheirPositions) {
    EXPECT_EQ(namesOf(0x0A), std::vector<std::string>{"LSGT"}); // beside the left Shift
    EXPECT_EQ(namesOf(0x32), std::vector<std::string>{"TLDE"}); // left of the 1
}

} // namespace
