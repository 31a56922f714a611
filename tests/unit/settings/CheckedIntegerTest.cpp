#include "settings/CheckedInteger.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr auto lowest = std::numeric_limits<std::int64_t>::min();

TEST(CheckedInteger, CutsTheFractionOffTowardZero) {
    EXPECT_EQ(checked::truncated(2.9), 2);
    EXPECT_EQ(checked::truncated(-2.9), -2);
    EXPECT_EQ(checked::truncated(0.9), 0);
    EXPECT_EQ(checked::truncated(-0.9), 0);
    EXPECT_EQ(checked::truncated(-0.0), 0);
    EXPECT_EQ(checked::truncated(7200), 7200);
}

TEST(CheckedInteger, TakesTheWholeRangeOf64Bits) {
    EXPECT_EQ(checked::truncated(-0x1p63), lowest);
    EXPECT_EQ(checked::truncated(std::nextafter(0x1p63, 0)), 0x7FFF'FFFF'FFFF'FC00);
}

TEST(CheckedIntegerDeathTest, ANumberOutsideTheRangeIsFatal) {
    for (const double number : {0x1p63, std::nextafter(-0x1p63, -infinity), 1e300, -1e300}) {
        EXPECT_DEATH((void)checked::truncated(number),
                     "^Fatal error: the number does not fit into a 64-bit integer\n$")
            << number;
    }
}

TEST(CheckedIntegerDeathTest, WhatIsNotFiniteIsFatal) {
    for (const double number : {infinity, -infinity, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_DEATH((void)checked::truncated(number), "does not fit into a 64-bit integer")
            << number;
    }
}

} // namespace
