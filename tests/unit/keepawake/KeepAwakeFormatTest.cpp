#include "keepawake/KeepAwakeManager.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

std::string formatted(double seconds) {
    return KeepAwakeManager::formatted(seconds);
}

TEST(KeepAwakeFormat, UnderAnHourIsMinutesAndTwoDigitsOfSeconds) {
    EXPECT_EQ(formatted(0), "0:00");
    EXPECT_EQ(formatted(5), "0:05");
    EXPECT_EQ(formatted(59), "0:59");
    EXPECT_EQ(formatted(60), "1:00");
    EXPECT_EQ(formatted(754), "12:34");
    EXPECT_EQ(formatted(3599), "59:59");
}

TEST(KeepAwakeFormat, FromAnHourOnHasHoursAndTwoDigitsOfMinutes) {
    EXPECT_EQ(formatted(3600), "1:00:00");
    EXPECT_EQ(formatted(3661), "1:01:01");
    EXPECT_EQ(formatted(7200), "2:00:00");
    EXPECT_EQ(formatted(36000), "10:00:00");
}

TEST(KeepAwakeFormat, HoursAreNotWrappedAtADay) {
    EXPECT_EQ(formatted(86400), "24:00:00");
    EXPECT_EQ(formatted(90061), "25:01:01");
    EXPECT_EQ(formatted(360'000'000), "100000:00:00");
}

TEST(KeepAwakeFormat, FractionsAreCutOff) {
    EXPECT_EQ(formatted(59.9), "0:59");
    EXPECT_EQ(formatted(59.99), "0:59");
    EXPECT_EQ(formatted(2.9), "0:02");
    EXPECT_EQ(formatted(3599.5), "59:59");
    EXPECT_EQ(formatted(std::nextafter(3600, 0)), "59:59");
    EXPECT_EQ(formatted(7199.999), "1:59:59");
    EXPECT_EQ(formatted(std::numeric_limits<double>::denorm_min()), "0:00");
}

TEST(KeepAwakeFormat, BelowZeroEachPartKeepsItsSign) {
    EXPECT_EQ(formatted(-5), "0:-5");
    EXPECT_EQ(formatted(-2.9), "0:-2");
    EXPECT_EQ(formatted(-0.9), "0:00");
    EXPECT_EQ(formatted(-65), "-1:-5");
    EXPECT_EQ(formatted(-3600), "0:00");
    EXPECT_EQ(formatted(-3661), "-1:-1");
}

TEST(KeepAwakeFormat, TakesEveryNumberThatFitsInto64Bits) {
    EXPECT_EQ(formatted(std::nextafter(0x1p63, 0)), "2562047788015215:13:04");
    EXPECT_EQ(formatted(-0x1p63), "-30:-8");
}

TEST(KeepAwakeFormatDeathTest, ANumberThatDoesNotFitInto64BitsIsFatal) {
    for (const double number : {0x1p63, std::nextafter(-0x1p63, -infinity), 1e300, infinity,
                                -infinity, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_DEATH(formatted(number), "^Fatal error: the number does not fit into a 64-bit "
                                        "integer\n$")
            << number;
    }
}

} // namespace
