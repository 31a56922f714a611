#include "platform/linux/defaults/DefaultsStore.h"

#include "ChildProcess.h"
#include "CommaLocale.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <fstream>
#include <limits>

namespace {

namespace fs = std::filesystem;
using platform::Data;
using platform::DefaultsValue;
using platform::StringArray;
using platform::linux_host::DefaultsStore;

using Names = std::vector<std::string>;
using namespace std::string_literals;

constexpr auto name = "defaults.json";

/// A settings file in a folder of its own, and the store on it.
class DefaultsStoreTest : public testing::Test {
  protected:
    TemporaryFolder folder;
    fs::path file = folder.path() / name;
    DefaultsStore store{file};

    /// What the store answers; no value is the text "no value".
    DefaultsValue value(std::string_view key) { return valueIn(store, key); }

    /// What a program that starts now would find.
    [[nodiscard]] DefaultsValue valueAfterRestart(std::string_view key) const {
        DefaultsStore other(file);
        return valueIn(other, key);
    }

    static DefaultsValue valueIn(DefaultsStore& store, std::string_view key) {
        const DefaultsValue* const value = store.valueForKey(key);
        return value == nullptr ? noValue : *value;
    }

    static inline const DefaultsValue noValue = "no value"s;
};

using DefaultsStoreReading = DefaultsStoreTest;
using DefaultsStoreWriting = DefaultsStoreTest;
using DefaultsStoreRegistration = DefaultsStoreTest;

TEST_F(DefaultsStoreReading, FindsNothingInNoFile) {
    EXPECT_EQ(value("key"), noValue);
    EXPECT_EQ(folder.names(), Names{});
}

TEST_F(DefaultsStoreReading, FindsEveryTypeOfValue) {
    folder.write(name, R"({"b": true, "i": 1, "d": 1.0, "s": "x", "a": ["x"], "e": [],
                           "data": {"data": "AQI="}})");
    EXPECT_EQ(value("b"), DefaultsValue(true));
    EXPECT_EQ(value("i"), DefaultsValue(std::int64_t{1}));
    EXPECT_EQ(value("d"), DefaultsValue(1.0));
    EXPECT_EQ(value("s"), DefaultsValue("x"s));
    EXPECT_EQ(value("a"), DefaultsValue(StringArray{"x"}));
    EXPECT_EQ(value("e"), DefaultsValue(StringArray{}));
    EXPECT_EQ(value("data"), DefaultsValue(Data{1, 2}));
}

TEST_F(DefaultsStoreReading, SeesAFileThatAppearsChangesAndGoes) {
    EXPECT_EQ(value("key"), noValue);
    folder.write(name, R"({"key": "first"})");
    EXPECT_EQ(value("key"), DefaultsValue("first"s));
    folder.write(name, R"({"key": "second"})");
    EXPECT_EQ(value("key"), DefaultsValue("second"s));
    fs::remove(file);
    EXPECT_EQ(value("key"), noValue);
}

TEST_F(DefaultsStoreReading, SeesAnotherFileOfTheSameSizeAndTime) {
    folder.write(name, R"({"key": 1})");
    EXPECT_EQ(value("key"), DefaultsValue(std::int64_t{1}));
    folder.write("other", R"({"key": 2})");
    fs::last_write_time(folder.path() / "other", fs::last_write_time(file));
    fs::rename(folder.path() / "other", file);
    EXPECT_EQ(value("key"), DefaultsValue(std::int64_t{2}));
}

TEST_F(DefaultsStoreReading, SeesTheSameFileComeBack) {
    folder.write(name, R"({"key": 1})");
    EXPECT_EQ(value("key"), DefaultsValue(std::int64_t{1}));
    fs::rename(file, folder.path() / "elsewhere");
    EXPECT_EQ(value("key"), noValue);
    fs::rename(folder.path() / "elsewhere", file);
    EXPECT_EQ(value("key"), DefaultsValue(std::int64_t{1}));
}

TEST_F(DefaultsStoreReading, SeesALinkThatLeadsElsewhere) {
    folder.write("one", R"({"key": 1})");
    folder.write("two", R"({"key": 2})");
    fs::create_symlink("one", file);
    EXPECT_EQ(value("key"), DefaultsValue(std::int64_t{1}));
    fs::remove(file);
    fs::create_symlink("two", file);
    EXPECT_EQ(value("key"), DefaultsValue(std::int64_t{2}));
}

// Two changes within one tick of the file system's clock leave the same time.
TEST_F(DefaultsStoreReading, SeesTheSecondOfTwoChangesWithinATick) {
    using Clock = fs::file_time_type::clock;
    const auto writeAt = [this](const char* text, fs::file_time_type time) {
        std::ofstream(file) << text;
        fs::last_write_time(file, time);
    };
    for (int attempt = 0; attempt < 1000; ++attempt) {
        const auto tick = Clock::now();
        writeAt(R"({"key": 1})", tick);
        EXPECT_EQ(value("key"), DefaultsValue(std::int64_t{1}));
        const bool wasReadWithinTheTick = Clock::now() - tick < std::chrono::milliseconds(10);
        writeAt(R"({"key": 2})", tick);
        if (wasReadWithinTheTick) {
            EXPECT_EQ(value("key"), DefaultsValue(std::int64_t{2}));
            return;
        }
    }
    FAIL() << "the machine was too busy to write and read within ten milliseconds";
}

TEST_F(DefaultsStoreReading, TakesNullForNoValue) {
    folder.write(name, R"({"key": null, "other": 1, "other": null})");
    store.registerDefaults({{"key", true}});
    EXPECT_EQ(value("key"), DefaultsValue(true));
    EXPECT_EQ(value("other"), noValue);
}

TEST_F(DefaultsStoreReading, TakesTheLastOfTwoValues) {
    folder.write(name, R"({"key": 1, "key": 2})");
    EXPECT_EQ(value("key"), DefaultsValue(std::int64_t{2}));
}

TEST_F(DefaultsStoreReading, TakesANumberBeyondTheRangeForInfinite) {
    folder.write(name, R"({"key": -1e999, "other": true})");
    EXPECT_EQ(value("key"), DefaultsValue(-std::numeric_limits<double>::infinity()));
    EXPECT_EQ(value("other"), DefaultsValue(true));
}

TEST_F(DefaultsStoreRegistration, AnswersForKeysThatAreNotStored) {
    store.registerDefaults({{"key", std::int64_t{7200}}});
    EXPECT_EQ(value("key"), DefaultsValue(std::int64_t{7200}));
    folder.write(name, R"({"key": 1})");
    EXPECT_EQ(value("key"), DefaultsValue(std::int64_t{1}));
}

TEST_F(DefaultsStoreRegistration, IsNeverWritten) {
    store.registerDefaults({{"key", true}});
    EXPECT_EQ(folder.names(), Names{});
    store.setValue(1.5, "other");
    EXPECT_EQ(valueAfterRestart("key"), noValue);
}

TEST_F(DefaultsStoreRegistration, AddsToWhatWasRegisteredBefore) {
    store.registerDefaults({{"one", true}, {"both", true}});
    store.registerDefaults({{"both", false}, {"two", true}});
    EXPECT_EQ(value("one"), DefaultsValue(true));
    EXPECT_EQ(value("both"), DefaultsValue(false));
    EXPECT_EQ(value("two"), DefaultsValue(true));
}

TEST_F(DefaultsStoreRegistration, DoesNotAnswerForAStoredValueThatNoSettingCanBe) {
    folder.write(name, R"({"key": ["topLeft", 1]})");
    store.registerDefaults({{"key", StringArray{"bottomRight"}}});
    EXPECT_EQ(value("key"), noValue);
}

TEST_F(DefaultsStoreRegistration, AValueEqualToTheRegisteredOneIsStoredAllTheSame) {
    store.registerDefaults({{"key", true}});
    store.setValue(true, "key");
    EXPECT_EQ(valueAfterRestart("key"), DefaultsValue(true));
}

TEST_F(DefaultsStoreWriting, EveryTypeOfValueReadsBackAfterARestart) {
    const std::vector<DefaultsValue> values{
        true,         false,         std::int64_t{1},
        1.0,          -0.1,          std::numeric_limits<double>::infinity(),
        "text"s,      ""s,           Data{},
        Data{0, 255}, StringArray{}, StringArray{"bottomRight"},
    };
    for (const DefaultsValue& each : values) {
        store.setValue(each, "key");
        EXPECT_EQ(value("key"), each);
        EXPECT_EQ(valueAfterRestart("key"), each);
    }
}

TEST_F(DefaultsStoreWriting, MakesAFileThatAPersonCanRead) {
    store.setValue(StringArray{"topLeft", "bottomRight"}, "hotCorners");
    store.setValue(false, "shortcutsEnabled");
    store.setValue(Data{'{', '}'}, "minimizeShortcut");
    EXPECT_EQ(folder.read(name), R"({
  "hotCorners": ["topLeft", "bottomRight"],
  "shortcutsEnabled": false,
  "minimizeShortcut": {"data": "e30="}
}
)");
}

TEST_F(DefaultsStoreWriting, MakesFileAndFoldersForTheUserAlone) {
    const fs::path inner = folder.path() / "one" / "two";
    DefaultsStore(inner / name).setValue(true, "key");
    EXPECT_EQ(modeOf(inner / name), 0600U);
    EXPECT_EQ(modeOf(inner), 0700U);
    EXPECT_EQ(modeOf(inner.parent_path()), 0700U);
}

TEST_F(DefaultsStoreWriting, LeavesNoOtherFile) {
    store.setValue(true, "key");
    store.setValue(false, "key");
    EXPECT_EQ(folder.names(), Names{name});
}

TEST_F(DefaultsStoreWriting, KeepsWhatItDoesNotKnowAsItWasWritten) {
    folder.write(name, "{ \"b\" : 1.50,\n\t\"key\": 1, \"n\": null, \"big\": "
                       "123456789012345678901234567890, \"a\": [ {} , -1 ]}");
    store.setValue(true, "key");
    EXPECT_EQ(folder.read(name), "{ \"b\" : 1.50,\n\t\"key\": true, \"n\": null, \"big\": "
                                 "123456789012345678901234567890, \"a\": [ {} , -1 ]}");
}

TEST_F(DefaultsStoreWriting, GoesIntoWhatTheFileSaysNow) {
    folder.write(name, R"({"mine": 1, "theirs": 1})");
    EXPECT_EQ(value("theirs"), DefaultsValue(std::int64_t{1}));
    folder.write(name, R"({"mine": 1, "theirs": 2})");
    store.setValue(std::int64_t{3}, "mine");
    EXPECT_EQ(folder.read(name), R"({"mine": 3, "theirs": 2})");
}

TEST_F(DefaultsStoreWriting, OfTheStoredValueTouchesNothing) {
    folder.write(name, R"({"key":true})");
    const auto time = fs::last_write_time(file);
    store.setValue(true, "key");
    EXPECT_EQ(fs::last_write_time(file), time);
}

TEST_F(DefaultsStoreWriting, TellsEqualNumbersOfDifferentTypesApart) {
    folder.write(name, R"({"key": 1})");
    store.setValue(1.0, "key");
    EXPECT_EQ(valueAfterRestart("key"), DefaultsValue(1.0));
    store.setValue(true, "key");
    EXPECT_EQ(valueAfterRestart("key"), DefaultsValue(true));
}

TEST_F(DefaultsStoreWriting, AnEmptyArrayIsNotTheRegisteredOne) {
    store.registerDefaults({{"key", StringArray{"bottomRight"}}});
    store.setValue(StringArray{}, "key");
    EXPECT_EQ(value("key"), DefaultsValue(StringArray{}));
}

TEST_F(DefaultsStoreWriting, ANumberThatIsNoneComesBackAsOne) {
    store.setValue(std::numeric_limits<double>::quiet_NaN(), "key");
    const DefaultsValue stored = valueAfterRestart("key");
    ASSERT_TRUE(std::holds_alternative<double>(stored));
    EXPECT_TRUE(std::isnan(std::get<double>(stored)));
}

TEST_F(DefaultsStoreWriting, TheLocaleDoesNotMatter) {
    const CommaLocale locale;
    if (!CommaLocale::isInForce()) {
        GTEST_SKIP() << "no locale with a decimal comma, and the locales package to make one";
    }
    store.setValue(1.5, "key");
    EXPECT_EQ(folder.read(name), "{\n  \"key\": 1.5\n}\n");
    EXPECT_EQ(valueAfterRestart("key"), DefaultsValue(1.5));
}

TEST_F(DefaultsStoreWriting, AnyTextIsAKeyAndAValue) {
    const std::string text = "a\"\\\n\t\x01 \xc3\xbc %s";
    store.setValue(text, text);
    EXPECT_EQ(valueAfterRestart(text), DefaultsValue(text));
}

TEST_F(DefaultsStoreWriting, ReplacesTheFileThatALinkLeadsTo) {
    fs::create_directory(folder.path() / "dotfiles");
    folder.write("dotfiles/settings", R"({"key":1})");
    fs::create_symlink("dotfiles/settings", file);
    store.setValue(std::int64_t{2}, "key");
    EXPECT_TRUE(fs::is_symlink(fs::symlink_status(file)));
    EXPECT_EQ(folder.read("dotfiles/settings"), R"({"key":2})");
    EXPECT_EQ(folder.names(), (Names{name, "dotfiles"}));
}

TEST_F(DefaultsStoreWriting, MakesTheFileThatALinkLeadsTo) {
    fs::create_symlink("dotfiles/settings", file);
    store.setValue(true, "key");
    EXPECT_TRUE(fs::is_symlink(fs::symlink_status(file)));
    EXPECT_EQ(folder.read("dotfiles/settings"), "{\n  \"key\": true\n}\n");
}

TEST_F(DefaultsStoreWriting, TwoProcessesLoseNothingOfEachOther) {
    constexpr int count = 5;
    const auto writeKeys = [this](const std::string& prefix) {
        DefaultsStore own(file);
        for (int number = 0; number < count; ++number) {
            own.setValue(true, prefix + std::to_string(number));
        }
    };
    const pid_t other = startChild([&writeKeys] { writeKeys("a"); });
    writeKeys("b");
    waitFor(other);
    for (int number = 0; number < count; ++number) {
        EXPECT_EQ(valueAfterRestart("a" + std::to_string(number)), DefaultsValue(true));
        EXPECT_EQ(valueAfterRestart("b" + std::to_string(number)), DefaultsValue(true));
    }
}

} // namespace
