#include "platform/UserDefaults.h"
#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace {

using platform::Data;
using platform::DefaultsValue;
using platform::StringArray;
using simulated::desktop;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::Pointee;
using namespace std::string_literals;

platform::UserDefaults& defaults() {
    return platform::UserDefaults::standard();
}

void store(DefaultsValue value) {
    desktop().userDefaults.stored["key"] = std::move(value);
}

bool boolOf(DefaultsValue value) {
    store(std::move(value));
    return defaults().boolForKey("key");
}

double doubleOf(DefaultsValue value) {
    store(std::move(value));
    return defaults().doubleForKey("key");
}

TEST(SimulatedUserDefaults, AMissingKeyIsFalseZeroAndNull) {
    EXPECT_FALSE(defaults().boolForKey("key"));
    EXPECT_EQ(defaults().doubleForKey("key"), 0);
    EXPECT_EQ(defaults().dataForKey("key"), nullptr);
    EXPECT_EQ(defaults().stringArrayForKey("key"), nullptr);
}

TEST(SimulatedUserDefaults, ABooleanIsReadFromBooleansNumbersAndThreeTexts) {
    EXPECT_TRUE(boolOf(true));
    EXPECT_FALSE(boolOf(false));
    EXPECT_TRUE(boolOf(std::int64_t{-1}));
    EXPECT_FALSE(boolOf(std::int64_t{0}));
    EXPECT_TRUE(boolOf(0.5));
    EXPECT_FALSE(boolOf(0.0));
    for (const auto& text : {"yes"s, "YES"s, "true"s, "True"s, "1"s}) {
        EXPECT_TRUE(boolOf(text)) << text;
    }
    for (const auto& text : {""s, "no"s, "false"s, "0"s, "on"s, "yes "s, "10"s, "y"s}) {
        EXPECT_FALSE(boolOf(text)) << text;
    }
    EXPECT_FALSE(boolOf(Data{1}));
    EXPECT_FALSE(boolOf(StringArray{"1"}));
}

TEST(SimulatedUserDefaults, ADoubleIsReadFromNumbersBooleansAndTextsThatBeginWithOne) {
    EXPECT_EQ(doubleOf(7200.5), 7200.5);
    EXPECT_EQ(doubleOf(std::int64_t{7200}), 7200);
    EXPECT_EQ(doubleOf(true), 1);
    EXPECT_EQ(doubleOf(false), 0);
    EXPECT_EQ(doubleOf("7200"s), 7200);
    EXPECT_EQ(doubleOf(" -2.5e1 minutes"s), -25);
    EXPECT_EQ(doubleOf("+.5"s), 0.5);
    EXPECT_EQ(doubleOf("12-3"s), 12);
    for (const auto& text : {""s, " "s, "minutes 5"s, "-"s, "0x10"s, "inf"s, "nan"s, ".e1"s}) {
        EXPECT_EQ(doubleOf(text), 0) << text;
    }
    EXPECT_EQ(doubleOf(Data{'1'}), 0);
    EXPECT_EQ(doubleOf(StringArray{"1"}), 0);
}

TEST(SimulatedUserDefaults, ANumberOutOfRangeIsInfinite) {
    EXPECT_EQ(doubleOf("1e999"s), std::numeric_limits<double>::infinity());
    EXPECT_EQ(doubleOf("-1e999"s), -std::numeric_limits<double>::infinity());
    EXPECT_EQ(doubleOf("1e-999"s), 0);
}

TEST(SimulatedUserDefaults, DataIsReadFromDataAlone) {
    store(Data{0, 255});
    EXPECT_THAT(defaults().dataForKey("key"), Pointee(ElementsAre(0, 255)));
    store(Data{});
    EXPECT_THAT(defaults().dataForKey("key"), Pointee(IsEmpty()));
    for (const DefaultsValue& value :
         {DefaultsValue{true}, DefaultsValue{std::int64_t{1}}, DefaultsValue{1.0},
          DefaultsValue{"text"s}, DefaultsValue{StringArray{"text"}}}) {
        store(value);
        EXPECT_EQ(defaults().dataForKey("key"), nullptr);
    }
}

TEST(SimulatedUserDefaults, StringsAreReadFromAnArrayOfStringsAlone) {
    store(StringArray{"b", "a"});
    EXPECT_THAT(defaults().stringArrayForKey("key"), Pointee(ElementsAre("b", "a")));
    store(StringArray{});
    EXPECT_THAT(defaults().stringArrayForKey("key"), Pointee(IsEmpty()));
    for (const DefaultsValue& value :
         {DefaultsValue{true}, DefaultsValue{std::int64_t{1}}, DefaultsValue{1.0},
          DefaultsValue{"text"s}, DefaultsValue{Data{'t'}}}) {
        store(value);
        EXPECT_EQ(defaults().stringArrayForKey("key"), nullptr);
    }
}

TEST(SimulatedUserDefaults, ARegisteredValueAnswersOnlyForAKeyThatIsNotStored) {
    defaults().registerDefaults({{"a", true}, {"b", true}});
    desktop().userDefaults.stored["b"] = false;
    EXPECT_TRUE(defaults().boolForKey("a"));
    EXPECT_FALSE(defaults().boolForKey("b"));
    EXPECT_FALSE(desktop().userDefaults.stored.contains("a"));
}

TEST(SimulatedUserDefaults, AStoredValueOfAnotherTypeStillHidesTheRegisteredOne) {
    defaults().registerDefaults({{"key", StringArray{"a"}}});
    store("text"s);
    EXPECT_EQ(defaults().stringArrayForKey("key"), nullptr);
    desktop().userDefaults.stored.clear();
    desktop().userDefaults.storedOtherwise.insert("key");
    EXPECT_EQ(defaults().stringArrayForKey("key"), nullptr);
    EXPECT_FALSE(defaults().boolForKey("key"));
}

TEST(SimulatedUserDefaults, RegisteringAgainAddsAndReplaces) {
    defaults().registerDefaults({{"a", std::int64_t{1}}, {"b", std::int64_t{1}}});
    defaults().registerDefaults({{"b", std::int64_t{2}}, {"c", std::int64_t{3}}});
    EXPECT_THAT(desktop().userDefaults.registered(),
                ElementsAre(Pair("a", DefaultsValue{std::int64_t{1}}),
                            Pair("b", DefaultsValue{std::int64_t{2}}),
                            Pair("c", DefaultsValue{std::int64_t{3}})));
}

TEST(SimulatedUserDefaults, AWrittenValueIsStoredWithItsType) {
    desktop().userDefaults.storedOtherwise.insert("bool");
    defaults().setBool(true, "bool");
    defaults().setDouble(1, "double");
    defaults().setObject(StringArray{}, "strings");
    EXPECT_THAT(desktop().userDefaults.stored,
                ElementsAre(Pair("bool", DefaultsValue{true}), Pair("double", DefaultsValue{1.0}),
                            Pair("strings", DefaultsValue{StringArray{}})));
    EXPECT_TRUE(defaults().boolForKey("bool"));
}

TEST(SimulatedUserDefaults, AStoreThatCannotBeReadIsEmpty) {
    defaults().registerDefaults({{"key", true}});
    store(false);
    desktop().userDefaults.storedOtherwise.insert("other");
    desktop().userDefaults.isReadable = false;
    EXPECT_TRUE(defaults().boolForKey("key"));
    EXPECT_FALSE(defaults().boolForKey("other"));
}

TEST(SimulatedUserDefaults, AValueThatCannotBeWrittenIsKeptForTheRest) {
    store(false);
    desktop().userDefaults.isWritable = false;
    defaults().setBool(true, "key");
    EXPECT_TRUE(defaults().boolForKey("key"));
    EXPECT_THAT(desktop().userDefaults.stored, ElementsAre(Pair("key", DefaultsValue{false})));
}

TEST(SimulatedUserDefaults, AStoreThatCannotBeReadIsNotWrittenEither) {
    store(false);
    desktop().userDefaults.isReadable = false;
    defaults().setBool(true, "key");
    EXPECT_TRUE(defaults().boolForKey("key"));
    EXPECT_THAT(desktop().userDefaults.stored, ElementsAre(Pair("key", DefaultsValue{false})));
}

TEST(SimulatedUserDefaults, ALaterWriteReplacesAValueThatCouldNotBeWritten) {
    desktop().userDefaults.isWritable = false;
    defaults().setDouble(1, "key");
    desktop().userDefaults.isWritable = true;
    defaults().setDouble(2, "key");
    EXPECT_EQ(defaults().doubleForKey("key"), 2);
    store(3.0);
    EXPECT_EQ(defaults().doubleForKey("key"), 3);
}

TEST(SimulatedUserDefaults, LendsACopyOfWhatIsStored) {
    store(StringArray{"a"});
    const auto* const lent = defaults().stringArrayForKey("key");
    EXPECT_NE(lent, std::get_if<StringArray>(&desktop().userDefaults.stored.at("key")));
}

TEST(SimulatedUserDefaults, CallsShowTheValues) {
    defaults().registerDefaults({{"a", false}, {"b", std::int64_t{7200}}});
    defaults().setBool(true, "a");
    defaults().setDouble(7200.5, "a");
    defaults().setObject("text"s, "a");
    defaults().setObject(Data{'{', '}'}, "a");
    defaults().setObject(StringArray{"x", "y"}, "a");
    (void)defaults().boolForKey("a");
    (void)defaults().doubleForKey("a");
    (void)defaults().dataForKey("a");
    (void)defaults().stringArrayForKey("a");
    EXPECT_THAT(desktop().calls.all(),
                ElementsAre("registerDefaults(a: false, b: 7200)", "setBool(true, a)",
                            "setDouble(7200.5, a)", "setObject(\"text\", a)", "setObject(<{}>, a)",
                            "setObject([\"x\", \"y\"], a)", "boolForKey(a)", "doubleForKey(a)",
                            "dataForKey(a)", "stringArrayForKey(a)"));
}

} // namespace
