#include "contract/World.h"
#include "platform/UserDefaults.h"

#include <gmock/gmock.h>

#include <limits>

namespace {

using platform::Data;
using platform::DefaultsValue;
using platform::StringArray;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsNull;
using testing::Pointee;
using namespace std::string_literals;

class UserDefaultsContract : public contract::WorldTest {
  protected:
    [[nodiscard]] bool becomesStored(const std::string& key, const DefaultsValue& value) {
        return world_->turnUntil([&] { return world_->stored(key) == value; });
    }

    platform::UserDefaults& defaults_ = platform::UserDefaults::standard();
};

TEST_F(UserDefaultsContract, AMissingKeyIsFalseZeroAndNull) {
    EXPECT_FALSE(defaults_.boolForKey("missing"));
    EXPECT_EQ(defaults_.doubleForKey("missing"), 0);
    EXPECT_THAT(defaults_.dataForKey("missing"), IsNull());
    EXPECT_THAT(defaults_.stringArrayForKey("missing"), IsNull());
}

TEST_F(UserDefaultsContract, WhatIsWrittenIsReadBack) {
    defaults_.setBool(true, "bool");
    defaults_.setDouble(0.1, "double");
    defaults_.setObject(Data{0, '"', 128, 255}, "data");
    defaults_.setObject(StringArray{"b", "", "a\n\"⌘\"", "b"}, "strings");
    EXPECT_TRUE(defaults_.boolForKey("bool"));
    EXPECT_EQ(defaults_.doubleForKey("double"), 0.1);
    EXPECT_THAT(defaults_.dataForKey("data"), Pointee(ElementsAre(0, '"', 128, 255)));
    EXPECT_THAT(defaults_.stringArrayForKey("strings"),
                Pointee(ElementsAre("b", "", "a\n\"⌘\"", "b")));
}

TEST_F(UserDefaultsContract, WhatIsWrittenIsStoredWithItsType) {
    defaults_.setBool(false, "bool");
    defaults_.setDouble(7200, "double");
    defaults_.setObject(std::int64_t{7200}, "integer");
    defaults_.setObject("text"s, "text");
    defaults_.setObject(Data{'{', '}'}, "data");
    defaults_.setObject(StringArray{"bottomRight"}, "strings");
    EXPECT_TRUE(becomesStored("bool", false));
    EXPECT_TRUE(becomesStored("double", 7200.0));
    EXPECT_TRUE(becomesStored("integer", std::int64_t{7200}));
    EXPECT_TRUE(becomesStored("text", "text"s));
    EXPECT_TRUE(becomesStored("data", Data{'{', '}'}));
    EXPECT_TRUE(becomesStored("strings", StringArray{"bottomRight"}));
}

TEST_F(UserDefaultsContract, ALaterWriteReplacesAValueOfAnyType) {
    defaults_.setObject(StringArray{"a"}, "key");
    defaults_.setBool(true, "key");
    EXPECT_TRUE(defaults_.boolForKey("key"));
    EXPECT_THAT(defaults_.stringArrayForKey("key"), IsNull());
}

TEST_F(UserDefaultsContract, EmptyDataAndAnEmptyArrayAreValues) {
    defaults_.registerDefaults({{"data", Data{1}}, {"strings", StringArray{"a"}}});
    defaults_.setObject(Data{}, "data");
    defaults_.setObject(StringArray{}, "strings");
    EXPECT_THAT(defaults_.dataForKey("data"), Pointee(IsEmpty()));
    EXPECT_THAT(defaults_.stringArrayForKey("strings"), Pointee(IsEmpty()));
}

TEST_F(UserDefaultsContract, AWriteByAnotherProgramIsSeenByTheNextRead) {
    world_->store("flag", true);
    EXPECT_TRUE(defaults_.boolForKey("flag"));
    world_->store("flag", false);
    world_->store("corners", StringArray{"topLeft"});
    EXPECT_FALSE(defaults_.boolForKey("flag"));
    EXPECT_THAT(defaults_.stringArrayForKey("corners"), Pointee(ElementsAre("topLeft")));
}

TEST_F(UserDefaultsContract, WritingOneKeyKeepsWhatAnotherProgramStoredUnderOthers) {
    world_->store("theirs", "text"s);
    defaults_.setBool(true, "ours");
    EXPECT_TRUE(becomesStored("ours", true));
    EXPECT_EQ(world_->stored("theirs"), DefaultsValue{"text"s});
}

TEST_F(UserDefaultsContract, ARegisteredValueAnswersForAKeyThatIsNotStored) {
    defaults_.registerDefaults({{"flag", true}, {"seconds", std::int64_t{7200}}});
    defaults_.registerDefaults({{"corners", StringArray{"bottomRight"}}});
    EXPECT_TRUE(defaults_.boolForKey("flag"));
    EXPECT_EQ(defaults_.doubleForKey("seconds"), 7200);
    EXPECT_THAT(defaults_.stringArrayForKey("corners"), Pointee(ElementsAre("bottomRight")));
}

TEST_F(UserDefaultsContract, AStoredValueWinsOverARegisteredOneEvenOfAnotherType) {
    defaults_.registerDefaults({{"flag", true}, {"corners", StringArray{"bottomRight"}}});
    world_->store("flag", false);
    world_->store("corners", "bottomRight"s);
    EXPECT_FALSE(defaults_.boolForKey("flag"));
    EXPECT_THAT(defaults_.stringArrayForKey("corners"), IsNull());
}

TEST_F(UserDefaultsContract, ARegisteredValueIsNeverStored) {
    defaults_.registerDefaults({{"flag", true}});
    EXPECT_TRUE(defaults_.boolForKey("flag"));
    defaults_.setBool(true, "other");
    EXPECT_TRUE(becomesStored("other", true));
    EXPECT_EQ(world_->stored("flag"), std::nullopt);
}

TEST_F(UserDefaultsContract, ABooleanIsReadFromNumbersAndTexts) {
    const std::vector<DefaultsValue> yes{true,   std::int64_t{2}, -0.5,    "yes"s,
                                         "YES"s, "true"s,         "True"s, "1"s};
    for (std::size_t index = 0; index < yes.size(); ++index) {
        world_->store("key", yes[index]);
        EXPECT_TRUE(defaults_.boolForKey("key")) << "value " << index;
    }
    const std::vector<DefaultsValue> no{false, std::int64_t{0}, 0.0,     ""s,
                                        "no"s, "false"s,        Data{1}, StringArray{"yes"}};
    for (std::size_t index = 0; index < no.size(); ++index) {
        world_->store("key", no[index]);
        EXPECT_FALSE(defaults_.boolForKey("key")) << "value " << index;
    }
}

TEST_F(UserDefaultsContract, ADoubleIsReadFromBooleansAndTexts) {
    const std::vector<std::pair<DefaultsValue, double>> values{
        {true, 1},       {false, 0},       {std::int64_t{-3}, -3}, {0.5, 0.5},
        {"7200"s, 7200}, {"-2.5e1"s, -25}, {"30 minutes"s, 30},    {"minutes"s, 0},
        {""s, 0},        {Data{'1'}, 0},   {StringArray{"1"}, 0}};
    for (std::size_t index = 0; index < values.size(); ++index) {
        world_->store("key", values[index].first);
        EXPECT_EQ(defaults_.doubleForKey("key"), values[index].second) << "value " << index;
    }
}

TEST_F(UserDefaultsContract, EveryDoubleIsReadBackExactly) {
    using Limits = std::numeric_limits<double>;
    for (const double value : {1.0 / 3, -1e-300, Limits::max(), Limits::denorm_min(), 1e15 + 0.5}) {
        defaults_.setDouble(value, "key");
        EXPECT_EQ(defaults_.doubleForKey("key"), value);
    }
}

TEST_F(UserDefaultsContract, DataIsReadFromNothingButData) {
    const std::vector<DefaultsValue> others{true, std::int64_t{1}, 1.0, "{}"s, StringArray{"{}"}};
    for (std::size_t index = 0; index < others.size(); ++index) {
        world_->store("key", others[index]);
        EXPECT_THAT(defaults_.dataForKey("key"), IsNull()) << "value " << index;
    }
}

TEST_F(UserDefaultsContract, StringsAreReadFromNothingButAnArrayOfStrings) {
    const std::vector<DefaultsValue> others{true, std::int64_t{1}, 1.0, "topLeft"s, Data{1}};
    for (std::size_t index = 0; index < others.size(); ++index) {
        world_->store("key", others[index]);
        EXPECT_THAT(defaults_.stringArrayForKey("key"), IsNull()) << "value " << index;
    }
}

TEST_F(UserDefaultsContract, AStoreThatCannotBeReadIsEmptyAndCallsGoOnWorking) {
    defaults_.registerDefaults({{"flag", true}});
    world_->store("flag", false);
    world_->loseStore();
    EXPECT_TRUE(defaults_.boolForKey("flag"));
}

TEST_F(UserDefaultsContract, AValueThatCannotBeWrittenIsKeptForTheRestOfTheRun) {
    world_->loseStore();
    defaults_.setBool(true, "flag");
    defaults_.setObject(StringArray{"topLeft"}, "corners");
    EXPECT_TRUE(defaults_.boolForKey("flag"));
    EXPECT_THAT(defaults_.stringArrayForKey("corners"), Pointee(ElementsAre("topLeft")));
}

} // namespace
