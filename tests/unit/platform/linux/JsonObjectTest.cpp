#include "platform/linux/defaults/JsonObject.h"

#include <gtest/gtest.h>

namespace {

using platform::linux_host::JsonObject;
using platform::linux_host::jsonString;

using Pairs = std::vector<std::pair<std::string, std::string>>;

/// Names and values of the members, in the order of the text.
Pairs membersOf(const std::string& text) {
    const auto object = JsonObject::parse(text);
    if (!object) {
        ADD_FAILURE() << "not an object: " << text;
        return {};
    }
    Pairs pairs;
    for (const auto& member : object->members()) {
        pairs.emplace_back(member.name, object->valueOf(member));
    }
    return pairs;
}

std::string changed(const std::string& text, std::string_view name, std::string_view value) {
    JsonObject object = JsonObject::parse(text).value();
    object.set(name, value);
    return object.text();
}

TEST(JsonObject, HasItsMembersInTheOrderOfTheText) {
    EXPECT_EQ(membersOf(R"({"b":1,"a":true})"), (Pairs{{"b", "1"}, {"a", "true"}}));
    EXPECT_EQ(membersOf("{}"), Pairs{});
    EXPECT_EQ(membersOf("\xef\xbb\xbf { \n } \n"), Pairs{});
}

TEST(JsonObject, AValueReachesToTheCommaThatIsNotPartOfIt) {
    EXPECT_EQ(membersOf(R"({ "a" : [1, {"x": "]},"}] , "b":"\\\",}", "c":{"d":[]}})"),
              (Pairs{{"a", R"([1, {"x": "]},"}])"}, {"b", R"("\\\",}")"}, {"c", R"({"d":[]})"}}));
}

TEST(JsonObject, ANameIsReadThroughItsEscapes) {
    EXPECT_EQ(membersOf(R"({"\u0061\"\\\n":1,"":2,"ü":3})"),
              (Pairs{{"a\"\\\n", "1"}, {"", "2"}, {"ü", "3"}}));
}

TEST(JsonObject, ANumberMayBeOfAnySize) {
    EXPECT_EQ(membersOf(R"({"a":1e999,"b":-123456789012345678901234567890})"),
              (Pairs{{"a", "1e999"}, {"b", "-123456789012345678901234567890"}}));
}

TEST(JsonObject, IsNothingElse) {
    using namespace std::string_literals;
    for (const std::string& text : {""s,
                                    " "s,
                                    "{"s,
                                    "}"s,
                                    "[]"s,
                                    "null"s,
                                    "{]"s,
                                    "{}}"s,
                                    "{} {}"s,
                                    "{},"s,
                                    "{a:1}"s,
                                    "{'a':1}"s,
                                    "{\"a\"}"s,
                                    "{\"a\":}"s,
                                    "{\"a\" 1}"s,
                                    "{\"a\":1,}"s,
                                    "{,\"a\":1}"s,
                                    "{\"a\":1 \"b\":2}"s,
                                    "{\"a\":1,,\"b\":2}"s,
                                    "{\"a\":1"s,
                                    "{\"a\":[1}"s,
                                    "{\"a\":[1}]}"s,
                                    "{\"a\":tru}"s,
                                    "{\"a\":01}"s,
                                    "{\"a\":1e}"s,
                                    "{\"a\":\"}"s,
                                    "{\"a\":\"\\\"}"s,
                                    "{\"a\":\"\\x\"}"s,
                                    "{\"a\":\"\n\"}"s,
                                    "{\"a\":\"\xff\"}"s,
                                    "{\"\xff\":1}"s,
                                    "{\"a\":[1]\"x\"}"s,
                                    "{\"a\":1}/*c*/"s,
                                    "{\"a\":NaN}"s,
                                    "{\"a\":\xef\xbb\xbf"
                                    "1}"s,
                                    "{}\0"s,
                                    "{}\0{"s,
                                    "{\"a\":1\0}"s,
                                    "{\"a\":[1]\0x}"s,
                                    "\xff\xfe{\0}\0"s}) {
        EXPECT_FALSE(JsonObject::parse(text)) << text;
    }
}

TEST(JsonObject, NestingAsDeepAsTheTextIsLongDoesNoHarm) {
    const std::string opening(500'000, '[');
    const std::string closing(500'000, ']');
    EXPECT_FALSE(JsonObject::parse("{\"a\":" + opening));
    EXPECT_TRUE(JsonObject::parse("{\"a\":" + opening + closing + "}"));
}

TEST(JsonObject, AChangeLeavesEverythingElseAsItWasWritten) {
    EXPECT_EQ(changed("\t{ \"a\":1.50 ,\n\n\"b\" : [ 1,2 ], \"c\":1E999}\r\n", "b", "true"),
              "\t{ \"a\":1.50 ,\n\n\"b\" : true, \"c\":1E999}\r\n");
}

TEST(JsonObject, ANewMemberStandsBehindTheLast) {
    EXPECT_EQ(changed("{\n  \"a\": 1\n}\n", "b", "2"), "{\n  \"a\": 1,\n  \"b\": 2\n}\n");
    EXPECT_EQ(changed("{\"a\":1}", "b", "2"), "{\"a\":1,\n  \"b\": 2}");
    EXPECT_EQ(changed("{}", "b", "2"), "{\n  \"b\": 2\n}");
    EXPECT_EQ(changed("{\n}\n", "b", "2"), "{\n  \"b\": 2\n}\n");
}

TEST(JsonObject, AMemberIsFoundThroughItsEscapes) {
    EXPECT_EQ(changed(R"({"\u0061":1})", "a", "2"), R"({"\u0061":2})");
}

TEST(JsonObject, OfMembersWithTheSameNameTheLastIsChanged) {
    EXPECT_EQ(changed(R"({"a":1,"a":2,"b":3})", "a", "4"), R"({"a":1,"a":4,"b":3})");
}

TEST(JsonObject, ChangesAddUp) {
    JsonObject object;
    object.set("a", "1");
    object.set("b", "[]");
    object.set("a", "\"longer\"");
    EXPECT_EQ(object.text(), "{\n  \"a\": \"longer\",\n  \"b\": []\n}\n");
}

TEST(JsonString, EscapesWhatJsonWantsEscaped) {
    EXPECT_EQ(jsonString("a\"\\\n\x01ü%"), R"("a\"\\\n\u0001ü%")");
    EXPECT_EQ(jsonString(std::string_view("\0", 1)), R"("\u0000")");
}

TEST(JsonString, ReplacesBytesThatAreNoText) {
    EXPECT_EQ(jsonString("a\xff"), "\"a\xef\xbf\xbd\"");
}

} // namespace
