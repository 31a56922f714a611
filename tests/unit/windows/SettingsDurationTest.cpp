#include "unit/windows/WindowTest.h"

#include <limits>

namespace {

using platform::DefaultsValue;
using simulated::desktop;
using testing::IsEmpty;

class SettingsDuration : public SettingsTest {
  protected:
    static double secondsStored() { return std::get<double>(stored("keepAwakeDurationSeconds")); }
    static double secondsAfterEntering(std::string_view minutes) {
        enterMinutes(minutes);
        return secondsStored();
    }
    static const std::string& fieldText() { return window().editableField().text(); }
};

using SettingsDurationDeathTest = SettingsDuration;

TEST_F(SettingsDuration, TypedIsStoredInSecondsOnReturnAndNotBefore) {
    open();
    window().editableField().type("45");
    EXPECT_THAT(desktop().userDefaults.stored, IsEmpty());
    window().editableField().pressReturn();
    EXPECT_EQ(stored("keepAwakeDurationSeconds"), DefaultsValue(2700.0));
}

TEST_F(SettingsDuration, TypedIsRaisedTo30Minutes) {
    open();
    for (const auto* const minutes : {"0", "1", "10", "29", "30", "-1", "-45"}) {
        EXPECT_EQ(secondsAfterEntering(minutes), 1800) << minutes;
    }
    EXPECT_EQ(secondsAfterEntering("31"), 1860);
}

TEST_F(SettingsDuration, TypedHasNoMaximum) {
    open();
    EXPECT_EQ(secondsAfterEntering("1440"), 86'400);
    EXPECT_EQ(secondsAfterEntering("1441"), 86'460);
    EXPECT_EQ(secondsAfterEntering("2000"), 120'000);
    EXPECT_EQ(secondsAfterEntering("1000000000"), 6e10);
}

TEST_F(SettingsDuration, TypedStaysInTheFieldAsItWas) {
    open();
    enterMinutes("10");
    EXPECT_EQ(fieldText(), "10");
    EXPECT_EQ(window().stepper().value(), 120);
}

TEST_F(SettingsDuration, TypedCountsAsTheWholeNumberThatItBeginsWith) {
    open();
    EXPECT_EQ(secondsAfterEntering("45 minutes"), 2700);
    EXPECT_EQ(secondsAfterEntering("45.9"), 2700);
    EXPECT_EQ(secondsAfterEntering("45,9"), 2700);
    EXPECT_EQ(secondsAfterEntering("1e3"), 1800);
    EXPECT_EQ(secondsAfterEntering("  45"), 2700);
    EXPECT_EQ(secondsAfterEntering("+45"), 2700);
    EXPECT_EQ(secondsAfterEntering("0045"), 2700);
    EXPECT_EQ(secondsAfterEntering("0x45"), 1800);
    EXPECT_EQ(secondsAfterEntering("45-50"), 2700);
}

TEST_F(SettingsDuration, TypedWithoutANumberIs30Minutes) {
    open();
    for (const auto* const text : {"", " ", "\t", "soon", "ten 45", "+", "-", "- 45", "--45",
                                   "+-45", ".5", "∞", "NaN", "४५", "٤٥", "４５"}) {
        EXPECT_EQ(secondsAfterEntering(text), 1800) << text;
    }
}

TEST_F(SettingsDuration, TypedMayBeTheLargestThatStaysAnIntegerInSeconds) {
    open();
    EXPECT_EQ(secondsAfterEntering("153722867280912930"), 9223372036854775800.0);
}

TEST_F(SettingsDurationDeathTest, TypedOneMinuteMoreIsFatal) {
    open();
    EXPECT_DEATH(enterMinutes("153722867280912931"),
                 "Fatal error: the product does not fit into a 64-bit integer");
}

TEST_F(SettingsDurationDeathTest, TypedTheLargestIntegerAndOneMoreAreFatal) {
    open();
    for (const auto* const minutes :
         {"9223372036854775807", "9223372036854775808", "99999999999999999999999999"}) {
        EXPECT_DEATH(enterMinutes(minutes),
                     "Fatal error: the product does not fit into a 64-bit integer")
            << minutes;
    }
}

TEST_F(SettingsDuration, TypedTheSmallestIntegerAndOneLessAre30Minutes) {
    open();
    EXPECT_EQ(secondsAfterEntering("-9223372036854775808"), 1800);
    EXPECT_EQ(secondsAfterEntering("-9223372036854775809"), 1800);
}

TEST_F(SettingsDuration, TypedAndThenOnlyClosedIsNotStored) {
    open();
    window().editableField().type("45");
    window().close();
    EXPECT_THAT(desktop().userDefaults.stored, IsEmpty());
}

TEST_F(SettingsDuration, SteppedUpFrom120Shows150AndStores9000Seconds) {
    open();
    window().stepper().clickUp();
    EXPECT_EQ(fieldText(), "150");
    EXPECT_EQ(secondsStored(), 9000);
}

TEST_F(SettingsDuration, SteppedAfter500WasTypedGoesOnFromTheSteppersOwnValue) {
    open();
    window().editableField().type("500");
    window().stepper().clickDown();
    EXPECT_EQ(fieldText(), "90");
    EXPECT_EQ(secondsStored(), 5400);
}

TEST_F(SettingsDuration, SteppedBeyondALimitGoesOnAtTheOther) {
    store("keepAwakeDurationSeconds", 1440 * 60.0);
    open();
    window().stepper().clickUp();
    EXPECT_EQ(fieldText(), "30");
    EXPECT_EQ(secondsStored(), 1800);
    window().stepper().clickDown();
    EXPECT_EQ(fieldText(), "1440");
    EXPECT_EQ(secondsStored(), 86'400);
}

TEST_F(SettingsDuration, StoredBeyondTheSteppersLimitsIsInTheFieldAsItIs) {
    store("keepAwakeDurationSeconds", 120'000.0);
    open();
    EXPECT_EQ(fieldText(), "2000");
    EXPECT_EQ(window().stepper().value(), 1440);
}

TEST_F(SettingsDuration, StoredIsShownInWholeMinutesTowardZero) {
    store("keepAwakeDurationSeconds", -119.0);
    open();
    EXPECT_EQ(fieldText(), "-1");
    EXPECT_EQ(window().stepper().value(), 30);
}

TEST_F(SettingsDuration, StoredAsTextThatIsNoNumberIsShownAsZero) {
    store("keepAwakeDurationSeconds", std::string("soon"));
    open();
    EXPECT_EQ(fieldText(), "0");
}

TEST_F(SettingsDuration, StoredMayBeTheLargestThatFitsWhenItIsInMinutes) {
    store("keepAwakeDurationSeconds", 0x1p63 * 59);
    open();
    EXPECT_EQ(fieldText(), "9069649169573862400");
}

TEST_F(SettingsDurationDeathTest, StoredThatIsNotFiniteOrOutOfRangeIsFatalWhenTheWindowOpens) {
    using Limits = std::numeric_limits<double>;
    for (const double seconds : {Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN(),
                                 Limits::max(), 0x1p63 * 60, -0x1p63 * 61}) {
        store("keepAwakeDurationSeconds", seconds);
        EXPECT_DEATH(open(), "Fatal error: the number does not fit into a 64-bit integer")
            << seconds;
    }
    store("keepAwakeDurationSeconds", std::string("1e999"));
    EXPECT_DEATH(open(), "Fatal error: the number does not fit into a 64-bit integer");
}

TEST_F(SettingsDuration, OfAnyOtherKindOfNonsenseIsNotFatal) {
    for (const DefaultsValue& nonsense :
         {DefaultsValue(true), DefaultsValue(std::string("")), DefaultsValue(platform::Data{}),
          DefaultsValue(platform::StringArray{"7200"}), DefaultsValue(std::int64_t{-1}),
          DefaultsValue(std::numeric_limits<std::int64_t>::max())}) {
        store("keepAwakeDurationSeconds", nonsense);
        EXPECT_EXIT(
            {
                open();
                std::exit(EXIT_SUCCESS);
            },
            testing::ExitedWithCode(EXIT_SUCCESS), "");
    }
}

TEST_F(SettingsDuration, WhereNothingCanBeStoredCountsUntilTheProgramEnds) {
    open();
    desktop().userDefaults.isWritable = false;
    enterMinutes("45");
    EXPECT_THAT(desktop().userDefaults.stored, IsEmpty());
    EXPECT_EQ(platform::UserDefaults::standard().doubleForKey("keepAwakeDurationSeconds"), 2700);
}

} // namespace
