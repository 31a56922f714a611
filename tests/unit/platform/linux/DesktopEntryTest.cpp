#include "platform/linux/loginitem/DesktopEntry.h"

#include <gtest/gtest.h>

namespace {

using platform::linux_host::DesktopEntry;

TEST(DesktopEntry, AnswersTheValueOfAKey) {
    const DesktopEntry entry("[Desktop Entry]\nExec=quellbar\n");
    EXPECT_EQ(entry.string("Exec"), "quellbar");
    EXPECT_EQ(entry.string("TryExec"), std::nullopt);
}

TEST(DesktopEntry, BlanksAroundKeyAndValueDoNotCount) {
    EXPECT_EQ(DesktopEntry("[Desktop Entry] \r\n Exec =\tquellbar x \r\n").string("Exec"),
              "quellbar x");
}

TEST(DesktopEntry, OtherGroupsAreNotRead) {
    const DesktopEntry entry("Exec=a\n[Desktop Action New]\nExec=b\n[Desktop Entry]\nType=x\n"
                             "[Other]\nExec=c\n");
    EXPECT_EQ(entry.string("Exec"), std::nullopt);
    EXPECT_EQ(entry.string("Type"), "x");
}

TEST(DesktopEntry, CommentsAndLinesWithoutAnEqualsSignArePassedOver) {
    const DesktopEntry entry("[Desktop Entry]\n#Exec=a\nExec\n\nExec=b");
    EXPECT_EQ(entry.string("Exec"), "b");
    EXPECT_EQ(entry.string("#Exec"), std::nullopt);
}

TEST(DesktopEntry, TheValueMayHoldEqualsSigns) {
    EXPECT_EQ(DesktopEntry("[Desktop Entry]\nExec=env A=b c\n").string("Exec"), "env A=b c");
}

TEST(DesktopEntry, EscapesAreUndone) {
    EXPECT_EQ(DesktopEntry(R"([Desktop Entry]
Exec=\sa\nb\tc\rd\\se\q\)")
                  .string("Exec"),
              " a\nb\tc\rd\\se\\q\\");
}

TEST(DesktopEntry, HasAKeyOnlyWithThatVeryValue) {
    const DesktopEntry entry("[Desktop Entry]\nHidden=true\n");
    EXPECT_TRUE(entry.has("Hidden", "true"));
    EXPECT_FALSE(entry.has("Hidden", "false"));
    EXPECT_FALSE(entry.has("NoDisplay", "true"));
    EXPECT_FALSE(DesktopEntry("[Desktop Entry]\nHidden=True\n").has("Hidden", "true"));
}

TEST(DesktopEntry, WhateverTheBytesTheyCanBeRead) {
    for (const std::string_view text : {"", "\n", "=", "[", "[Desktop Entry]\n=\n=x\nx=\n",
                                        "[Desktop Entry]\nExec=\\", "\xff\xfe[Desktop Entry]"}) {
        EXPECT_EQ(DesktopEntry(text).string("Type"), std::nullopt) << text;
    }
}

} // namespace
