#include "settings/Preferences.h"
#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

#include <type_traits>

namespace {

using platform::Data;
using platform::DefaultsValue;
using platform::StringArray;
using simulated::desktop;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAre;
using namespace std::string_literals;

static_assert(!std::is_default_constructible_v<Preferences>);
static_assert(!std::is_copy_constructible_v<Preferences>);

constexpr KeyCombo optionCommandM{46, 0x900};

Data data(std::string_view text) {
    return {text.begin(), text.end()};
}

Preferences& preferences() {
    return Preferences::shared();
}

void store(std::string_view key, DefaultsValue value) {
    desktop().userDefaults.stored.insert_or_assign(std::string(key), std::move(value));
}

const DefaultsValue& stored(const std::string& key) {
    return desktop().userDefaults.stored.at(key);
}

TEST(Preferences, IsMadeByTheFirstUseAndIsOne) {
    EXPECT_THAT(desktop().calls.all(), IsEmpty());
    auto* const first = &preferences();
    EXPECT_EQ(&preferences(), first);
    EXPECT_EQ(desktop().calls.of({"registerDefaults"}).size(), 1U);
}

TEST(Preferences, WrapsTheStandardUserDefaults) {
    EXPECT_EQ(&preferences().defaults, &platform::UserDefaults::standard());
}

TEST(Preferences, RegistersFactorySettingsForAllButTheShortcut) {
    preferences();
    EXPECT_THAT(desktop().userDefaults.registered(),
                ElementsAre(Pair("autoLaunchAtLogin", DefaultsValue{false}),
                            Pair("enableDockIcon", DefaultsValue{false}),
                            Pair("hotCorners", DefaultsValue{StringArray{"bottomRight"}}),
                            Pair("keepAwakeDurationSeconds", DefaultsValue{std::int64_t{7200}}),
                            Pair("shortcutsEnabled", DefaultsValue{true})));
}

TEST(Preferences, DoesNothingButRegisterWhenItIsMade) {
    preferences();
    EXPECT_EQ(desktop().calls.all(), desktop().calls.of({"registerDefaults"}));
    EXPECT_THAT(desktop().userDefaults.stored, IsEmpty());
}

TEST(Preferences, OfAFreshUserAreTheFactorySettings) {
    EXPECT_EQ(preferences().minimizeAllShortcut(), optionCommandM);
    EXPECT_EQ(preferences().hotCorners(), ScreenCornerSet{ScreenCorner::bottomRight});
    EXPECT_TRUE(preferences().defaults.boolForKey("shortcutsEnabled"));
    EXPECT_FALSE(preferences().defaults.boolForKey("autoLaunchAtLogin"));
    EXPECT_FALSE(preferences().defaults.boolForKey("enableDockIcon"));
    EXPECT_EQ(preferences().defaults.doubleForKey("keepAwakeDurationSeconds"), 7200.0);
    EXPECT_THAT(desktop().userDefaults.stored, IsEmpty());
}

TEST(Preferences, TheKeysOfThePlainSettingsAreThoseThatAreStored) {
    EXPECT_EQ(Preferences::autoLaunchAtLoginKey, "autoLaunchAtLogin"s);
    EXPECT_EQ(Preferences::enableDockIconKey, "enableDockIcon"s);
    EXPECT_EQ(Preferences::shortcutsEnabledKey, "shortcutsEnabled"s);
    EXPECT_EQ(Preferences::keepAwakeDurationSecondsKey, "keepAwakeDurationSeconds"s);
}

TEST(Preferences, AStoredSettingWinsOverTheFactorySetting) {
    store("shortcutsEnabled", false);
    store("keepAwakeDurationSeconds", 1800.5);
    store("hotCorners", StringArray{"topRight"});
    EXPECT_FALSE(preferences().defaults.boolForKey("shortcutsEnabled"));
    EXPECT_EQ(preferences().defaults.doubleForKey("keepAwakeDurationSeconds"), 1800.5);
    EXPECT_EQ(preferences().hotCorners(), ScreenCornerSet{ScreenCorner::topRight});
}

TEST(MinimizeShortcut, IsReadBackAsItWasStored) {
    for (const KeyCombo& combo : {KeyCombo{12, cmdKey}, KeyCombo{0, 0}, KeyCombo{0, 0x0400},
                                  KeyCombo{4294967295, 4294967295}}) {
        preferences().setMinimizeAllShortcut(combo);
        EXPECT_EQ(preferences().minimizeAllShortcut(), combo);
    }
}

TEST(MinimizeShortcut, IsStoredAsTheBytesOfItsJSON) {
    preferences().setMinimizeAllShortcut({12, cmdKey});
    EXPECT_EQ(stored("minimizeShortcut"), DefaultsValue{data(R"({"keyCode":12,"modifiers":256})")});
}

TEST(MinimizeShortcut, IsReadFromJSONInAnyOrder) {
    store("minimizeShortcut", data(R"({"modifiers":256,"keyCode":12})"));
    EXPECT_EQ(preferences().minimizeAllShortcut(), (KeyCombo{12, cmdKey}));
}

TEST(MinimizeShortcut, IsReadAnewEachTime) {
    preferences().setMinimizeAllShortcut({12, cmdKey});
    store("minimizeShortcut", data(R"({"keyCode":13,"modifiers":512})"));
    EXPECT_EQ(preferences().minimizeAllShortcut(), (KeyCombo{13, shiftKey}));
    desktop().userDefaults.stored.clear();
    EXPECT_EQ(preferences().minimizeAllShortcut(), optionCommandM);
}

TEST(MinimizeShortcut, IsTheDefaultWhereTheStoredBytesCannotBeRead) {
    for (const auto* const json :
         {R"({"keyCode":12})", R"({"modifiers":256})", "", "{}", "null", "[12,256]", "not JSON",
          R"({"keyCode":12,"modifiers":256)", R"({"keyCode":-1,"modifiers":256})",
          R"({"keyCode":4294967296,"modifiers":256})", R"({"keyCode":1.5,"modifiers":256})",
          R"({"keyCode":"12","modifiers":256})", R"({"keyCode":12,"modifiers":true})"}) {
        store("minimizeShortcut", data(json));
        EXPECT_EQ(preferences().minimizeAllShortcut(), optionCommandM) << json;
    }
}

TEST(MinimizeShortcut, IsTheDefaultWhereSomethingElseThanDataIsStored) {
    for (const DefaultsValue& value :
         {DefaultsValue{R"({"keyCode":12,"modifiers":256})"s}, DefaultsValue{true},
          DefaultsValue{std::int64_t{12}}, DefaultsValue{12.0}, DefaultsValue{StringArray{"12"}}}) {
        store("minimizeShortcut", value);
        EXPECT_EQ(preferences().minimizeAllShortcut(), optionCommandM);
    }
}

TEST(MinimizeShortcut, ThatCannotBeReadIsLeftAsItIs) {
    preferences();
    store("minimizeShortcut", data("broken"));
    desktop().calls.clear();
    (void)preferences().minimizeAllShortcut();
    EXPECT_THAT(desktop().calls.all(), ElementsAre("dataForKey(minimizeShortcut)"));
    EXPECT_EQ(stored("minimizeShortcut"), DefaultsValue{data("broken")});
}

TEST(MinimizeShortcut, IsWrittenWithOneCallAndRegistersNoHotKey) {
    preferences();
    desktop().calls.clear();
    preferences().setMinimizeAllShortcut({12, cmdKey});
    EXPECT_THAT(desktop().calls.all(),
                ElementsAre("setObject(<{\"keyCode\":12,\"modifiers\":256}>, minimizeShortcut)"));
}

TEST(MinimizeShortcut, ThatCannotBeStoredCountsForTheRestOfTheRun) {
    desktop().userDefaults.isWritable = false;
    preferences().setMinimizeAllShortcut({12, cmdKey});
    EXPECT_EQ(preferences().minimizeAllShortcut(), (KeyCombo{12, cmdKey}));
}

TEST(HotCorners, AreReadBackAsTheyWereStored) {
    const ScreenCornerSet all{ScreenCorner::topLeft, ScreenCorner::topRight,
                              ScreenCorner::bottomLeft, ScreenCorner::bottomRight};
    for (const ScreenCornerSet& corners :
         {all, ScreenCornerSet{ScreenCorner::topLeft, ScreenCorner::bottomLeft}}) {
        preferences().setHotCorners(corners);
        EXPECT_EQ(preferences().hotCorners(), corners);
    }
}

TEST(HotCorners, AreStoredAsAnArrayOfTheirNames) {
    preferences().setHotCorners({ScreenCorner::topLeft, ScreenCorner::bottomRight});
    EXPECT_THAT(std::get<StringArray>(stored("hotCorners")),
                UnorderedElementsAre("topLeft", "bottomRight"));
}

TEST(HotCorners, NoneIsStoredAsAnEmptyArrayAndReadBackAsNone) {
    preferences().setHotCorners({});
    EXPECT_EQ(stored("hotCorners"), DefaultsValue{StringArray{}});
    EXPECT_TRUE(preferences().hotCorners().isEmpty());
}

TEST(HotCorners, NamesOfNoCornerAndRepetitionsAreDropped) {
    store("hotCorners", StringArray{"topLeft", "nowhere", "", "TopRight", "topLeft"});
    EXPECT_EQ(preferences().hotCorners(), ScreenCornerSet{ScreenCorner::topLeft});
}

TEST(HotCorners, AreNoneWhereSomethingElseThanAnArrayOfStringsIsStored) {
    for (const DefaultsValue& value :
         {DefaultsValue{"bottomRight"s}, DefaultsValue{true}, DefaultsValue{std::int64_t{1}},
          DefaultsValue{1.0}, DefaultsValue{data(R"(["topLeft"])")}}) {
        store("hotCorners", value);
        EXPECT_TRUE(preferences().hotCorners().isEmpty());
    }
    desktop().userDefaults.storedOtherwise.insert("hotCorners");
    EXPECT_TRUE(preferences().hotCorners().isEmpty());
}

TEST(HotCorners, AreReadAnewEachTime) {
    preferences().setHotCorners({ScreenCorner::topLeft});
    store("hotCorners", StringArray{"topRight"});
    EXPECT_EQ(preferences().hotCorners(), ScreenCornerSet{ScreenCorner::topRight});
}

TEST(HotCorners, AreReadAndWrittenWithOneCallEach) {
    preferences();
    desktop().calls.clear();
    (void)preferences().hotCorners();
    preferences().setHotCorners({ScreenCorner::topLeft});
    EXPECT_THAT(desktop().calls.all(), ElementsAre("stringArrayForKey(hotCorners)",
                                                   "setObject([\"topLeft\"], hotCorners)"));
}

} // namespace
