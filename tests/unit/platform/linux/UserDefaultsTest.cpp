#include "platform/UserDefaults.h"

#include "AllocationCount.h"
#include "StandardError.h"
#include "TemporaryFolder.h"

#include "platform/linux/log/LogEntry.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>

namespace {

using platform::Data;
using platform::StringArray;
using platform::UserDefaults;

constexpr auto file = "quellbar/defaults.json";

/// The settings of a user whose configuration lives in a folder of its own. The standard defaults
/// are made once a process, so each of these tests wants a process of its own, as ctest gives it.
class UserDefaultsTest : public testing::Test {
  protected:
    UserDefaultsTest() { ::setenv("XDG_CONFIG_HOME", folder.path().c_str(), 1); }

    void store(std::string_view text) const {
        std::filesystem::create_directory(folder.path() / "quellbar");
        folder.write(file, text);
    }

    TemporaryFolder folder;
    UserDefaults& defaults = UserDefaults::standard();
};

TEST_F(UserDefaultsTest, AreOneObject) {
    EXPECT_EQ(&UserDefaults::standard(), &defaults);
}

TEST_F(UserDefaultsTest, LiveInTheConfigurationFolder) {
    defaults.setBool(true, "key");
    EXPECT_EQ(folder.read(file), "{\n  \"key\": true\n}\n");
}

TEST_F(UserDefaultsTest, AreEmptyWhereNothingIsStored) {
    EXPECT_FALSE(defaults.boolForKey("key"));
    EXPECT_EQ(defaults.doubleForKey("key"), 0);
    EXPECT_EQ(defaults.dataForKey("key"), nullptr);
    EXPECT_EQ(defaults.stringArrayForKey("key"), nullptr);
}

TEST_F(UserDefaultsTest, AnswerWithWhatIsRegistered) {
    defaults.registerDefaults({{"b", true},
                               {"i", std::int64_t{7200}},
                               {"a", StringArray{"bottomRight"}},
                               {"data", Data{1}}});
    EXPECT_TRUE(defaults.boolForKey("b"));
    EXPECT_EQ(defaults.doubleForKey("i"), 7200);
    EXPECT_EQ(*defaults.stringArrayForKey("a"), StringArray{"bottomRight"});
    EXPECT_EQ(*defaults.dataForKey("data"), Data{1});
}

TEST_F(UserDefaultsTest, ConvertBetweenTruthValuesNumbersAndText) {
    store(R"({"b": true, "i": 7200, "d": 0.5, "yes": "YES", "text": "90 minutes"})");
    EXPECT_EQ(defaults.doubleForKey("b"), 1);
    EXPECT_TRUE(defaults.boolForKey("i"));
    EXPECT_TRUE(defaults.boolForKey("d"));
    EXPECT_TRUE(defaults.boolForKey("yes"));
    EXPECT_EQ(defaults.doubleForKey("text"), 90);
}

TEST_F(UserDefaultsTest, HaveDataAndArraysOnlyWhereTheyAreStored) {
    store(R"({"s": "AQID", "data": {"data": "AQID"}, "a": ["x"], "mixed": ["x", 1], "e": []})");
    EXPECT_EQ(defaults.dataForKey("s"), nullptr);
    EXPECT_EQ(defaults.dataForKey("a"), nullptr);
    EXPECT_EQ(*defaults.dataForKey("data"), (Data{1, 2, 3}));
    EXPECT_EQ(defaults.stringArrayForKey("s"), nullptr);
    EXPECT_EQ(defaults.stringArrayForKey("data"), nullptr);
    EXPECT_EQ(defaults.stringArrayForKey("mixed"), nullptr);
    EXPECT_EQ(*defaults.stringArrayForKey("a"), StringArray{"x"});
    ASSERT_NE(defaults.stringArrayForKey("e"), nullptr);
    EXPECT_TRUE(defaults.stringArrayForKey("e")->empty());
}

TEST_F(UserDefaultsTest, ReadBackWhatWasSet) {
    defaults.setBool(true, "b");
    defaults.setDouble(1.5, "d");
    defaults.setDouble(std::numeric_limits<double>::infinity(), "inf");
    defaults.setObject(Data{1, 2}, "data");
    defaults.setObject(StringArray{}, "a");
    EXPECT_TRUE(defaults.boolForKey("b"));
    EXPECT_EQ(defaults.doubleForKey("d"), 1.5);
    EXPECT_EQ(defaults.doubleForKey("inf"), std::numeric_limits<double>::infinity());
    EXPECT_EQ(*defaults.dataForKey("data"), (Data{1, 2}));
    EXPECT_TRUE(defaults.stringArrayForKey("a")->empty());
}

TEST_F(UserDefaultsTest, AreReadWithoutAllocating) {
    store(R"({"hotCorners": ["topLeft"], "keepAwakeDurationSeconds": 7200})");
    EXPECT_NE(defaults.stringArrayForKey("hotCorners"), nullptr);
    const std::size_t before = allocationCount();
    (void)defaults.stringArrayForKey("hotCorners");
    (void)defaults.doubleForKey("keepAwakeDurationSeconds");
    (void)defaults.boolForKey("shortcutsEnabled");
    EXPECT_EQ(allocationCount(), before);
}

TEST(UserDefaultsWithoutAHome, LastForTheRunAndSaySo) {
    ::unsetenv("XDG_CONFIG_HOME");
    ::unsetenv("HOME");
    const StandardError standardError;
    UserDefaults& defaults = UserDefaults::standard();
    defaults.setBool(true, "key");
    defaults.setBool(true, "other");
    EXPECT_TRUE(defaults.boolForKey("key"));
    if (!std::filesystem::exists(platform::linux_host::journalSocket)) {
        EXPECT_EQ(standardError.text(),
                  "Quellbar: neither XDG_CONFIG_HOME nor HOME is an absolute path. Changed "
                  "settings last until Quellbar ends.\n");
    }
}

} // namespace
