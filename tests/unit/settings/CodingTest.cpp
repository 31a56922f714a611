#include "settings/Coding.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes bytes(std::string_view text) {
    return {text.begin(), text.end()};
}

std::string text(const Bytes& bytes) {
    return {bytes.begin(), bytes.end()};
}

std::optional<KeyCombo> keyCombo(std::string_view json) {
    return coding::decodeKeyCombo(bytes(json));
}

std::optional<ScreenCorner> screenCorner(std::string_view json) {
    return coding::decodeScreenCorner(bytes(json));
}

TEST(KeyComboCoding, WritesKeyCodeThenModifiersWithoutSpaces) {
    EXPECT_EQ(text(coding::encode(KeyCombo{46, 0x900})), R"({"keyCode":46,"modifiers":2304})");
    EXPECT_EQ(text(coding::encode(KeyCombo{0, 0})), R"({"keyCode":0,"modifiers":0})");
    EXPECT_EQ(text(coding::encode(KeyCombo{4294967295, 4294967295})),
              R"({"keyCode":4294967295,"modifiers":4294967295})");
}

TEST(KeyComboCoding, ReadsWhatItWrites) {
    for (const KeyCombo& combo : {KeyCombo{46, 0x900}, KeyCombo{0, 0x0400}, KeyCombo{4294967295, 0},
                                  KeyCombo{0, 4294967295}}) {
        EXPECT_EQ(coding::decodeKeyCombo(coding::encode(combo)), combo);
    }
}

TEST(KeyComboCoding, ReadsTheMembersInAnyOrder) {
    const auto combo = keyCombo(R"({"modifiers":256,"keyCode":12})");
    EXPECT_EQ(combo, (KeyCombo{12, cmdKey}));
    EXPECT_EQ(combo->displayString(), "⌘Q");
}

TEST(KeyComboCoding, IgnoresOtherMembers) {
    EXPECT_EQ(keyCombo(R"({"a":null,"keyCode":12,"b":{"keyCode":"x"},"modifiers":256,"c":[1]})"),
              (KeyCombo{12, 256}));
}

TEST(KeyComboCoding, TakesTheLastOfMembersWithTheSameName) {
    EXPECT_EQ(keyCombo(R"({"keyCode":12,"modifiers":256,"keyCode":13})"), (KeyCombo{13, 256}));
}

TEST(KeyComboCoding, IgnoresWhiteSpaceBetweenTokens) {
    EXPECT_EQ(keyCombo(" {\n\t\"keyCode\" : 12 ,\r\n \"modifiers\" : 256 } \n"),
              (KeyCombo{12, 256}));
}

TEST(KeyComboCoding, AWholeNumberIsAnIntegerHoweverItIsWritten) {
    EXPECT_EQ(keyCombo(R"({"keyCode":46.0,"modifiers":2.304e3})"), (KeyCombo{46, 2304}));
}

TEST(KeyComboCoding, BothMembersAreNeeded) {
    EXPECT_EQ(keyCombo(R"({"keyCode":12})"), std::nullopt);
    EXPECT_EQ(keyCombo(R"({"modifiers":256})"), std::nullopt);
    EXPECT_EQ(keyCombo("{}"), std::nullopt);
    EXPECT_EQ(keyCombo(R"({"keycode":12,"Modifiers":256})"), std::nullopt);
}

TEST(KeyComboCoding, EachMemberHasToBeAnIntegerOfThirtyTwoBitsWithoutSign) {
    for (const std::string value :
         {"-1", "4294967296", "1.5", "-0.5", "18446744073709551628", "1e10", "1e400", "\"12\"",
          "true", "false", "null", "[12]", "[]", "{}", "{\"keyCode\":12}"}) {
        EXPECT_EQ(keyCombo(R"({"keyCode":)" + value + R"(,"modifiers":256})"), std::nullopt)
            << value;
        EXPECT_EQ(keyCombo(R"({"keyCode":12,"modifiers":)" + value + "}"), std::nullopt) << value;
    }
}

TEST(KeyComboCoding, TheLimitsOfThirtyTwoBitsAreWithin) {
    EXPECT_EQ(keyCombo(R"({"keyCode":0,"modifiers":4294967295})"), (KeyCombo{0, 4294967295}));
    EXPECT_EQ(keyCombo(R"({"keyCode":4294967295,"modifiers":0})"), (KeyCombo{4294967295, 0}));
}

TEST(KeyComboCoding, NothingButAnObjectIsRead) {
    for (const auto* const json :
         {"", " ", "null", "true", "46", "\"keyCode\"", "[]", R"([{"keyCode":12,"modifiers":256}])",
          R"(["keyCode",12,"modifiers",256])"}) {
        EXPECT_EQ(keyCombo(json), std::nullopt) << json;
    }
}

TEST(KeyComboCoding, NothingIsReadFromTextThatIsNotJSON) {
    for (const auto* const notJSON :
         {"keyCode=12", "{keyCode:12,modifiers:256}", "{'keyCode':12,'modifiers':256}",
          R"({"keyCode":12,"modifiers":256)", R"({"keyCode":12,"modifiers":256,})",
          R"({"keyCode":12 "modifiers":256})", R"({"keyCode":12,"modifiers":256}})",
          R"({"keyCode":12,"modifiers":256} x)", R"({"keyCode":012,"modifiers":256})",
          R"({"keyCode":0xC,"modifiers":256})", R"({"keyCode":12,"modifiers":256}//)",
          R"({"keyCode":NaN,"modifiers":256})", "\xff\xfe"}) {
        EXPECT_EQ(keyCombo(notJSON), std::nullopt) << notJSON;
    }
}

TEST(KeyComboCoding, NothingIsReadFromAnyBeginningOfTheText) {
    const std::string whole = R"({"keyCode":46,"modifiers":2304})";
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_EQ(keyCombo(whole.substr(0, length)), std::nullopt) << whole.substr(0, length);
    }
}

TEST(KeyComboCoding, HugeAndDeepTextIsRefusedUnharmed) {
    EXPECT_EQ(keyCombo(std::string(100'000, '[')), std::nullopt);
    EXPECT_EQ(keyCombo(std::string(10'000, '[') + std::string(10'000, ']')), std::nullopt);
    EXPECT_EQ(keyCombo(R"({"keyCode":)" + std::string(100'000, '9') + "}"), std::nullopt);
    EXPECT_EQ(keyCombo(std::string(1'000, '\0')), std::nullopt);
}

TEST(ScreenCornerCoding, IsAStringWithTheNameOfTheCorner) {
    EXPECT_EQ(text(coding::encode(ScreenCorner::topLeft)), R"("topLeft")");
    for (const ScreenCorner corner : allScreenCorners) {
        EXPECT_EQ(coding::decodeScreenCorner(coding::encode(corner)), corner);
    }
}

TEST(ScreenCornerCoding, NothingElseIsRead) {
    for (const auto* const json :
         {R"("nowhere")", R"("TopLeft")", R"("")", "topLeft", "0", "null", "true", R"(["topLeft"])",
          R"({"topLeft":0})", "", R"("topLeft)"}) {
        EXPECT_EQ(screenCorner(json), std::nullopt) << json;
    }
}

} // namespace
