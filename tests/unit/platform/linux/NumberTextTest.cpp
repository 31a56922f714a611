#include "platform/linux/defaults/NumberText.h"

#include "CommaLocale.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using platform::linux_host::decimalFrom;
using platform::linux_host::integerFrom;
using platform::linux_host::isJsonNumber;
using platform::linux_host::textFrom;

constexpr double infinity = std::numeric_limits<double>::infinity();

TEST(NumberText, AnIntegerIsTheWholeText) {
    EXPECT_EQ(integerFrom("0"), 0);
    EXPECT_EQ(integerFrom("-46"), -46);
    EXPECT_EQ(integerFrom("9223372036854775807"), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(integerFrom("-9223372036854775808"), std::numeric_limits<std::int64_t>::min());
    for (const char* const text : {"", "-", "46.0", "1e3", "9223372036854775808", " 1", "1 "}) {
        EXPECT_EQ(integerFrom(text), std::nullopt) << text;
    }
}

TEST(NumberText, ADecimalIsReadFromTheBeginningOfTheText) {
    EXPECT_EQ(decimalFrom("7200"), 7200);
    EXPECT_EQ(decimalFrom("1.5 hours"), 1.5);
    EXPECT_EQ(decimalFrom(" \t\r\n-2.5e1x"), -25);
    EXPECT_EQ(decimalFrom("+3"), 3);
    EXPECT_EQ(decimalFrom(".5"), 0.5);
    EXPECT_EQ(decimalFrom("5."), 5);
    EXPECT_EQ(decimalFrom("5e"), 5);
}

TEST(NumberText, TextThatBeginsWithNoDecimalIsZero) {
    for (const char* const text : {"", " ", "-", "+", ".", "+-5", "-+5", "- 5", "two", "inf",
                                   "-inf", "infinite", "nan", "nano", "e5", "\xc2\xa0 5"}) {
        EXPECT_EQ(decimalFrom(text), 0) << text;
    }
    EXPECT_EQ(decimalFrom("0x10"), 0);
}

TEST(NumberText, ADecimalBeyondTheRangeIsInfinite) {
    EXPECT_EQ(decimalFrom("1e999"), infinity);
    EXPECT_EQ(decimalFrom("-1e999"), -infinity);
    EXPECT_EQ(decimalFrom("1.5e99999999999999999999 seconds"), infinity);
    EXPECT_EQ(decimalFrom("1" + std::string(400, '0')), infinity);
}

TEST(NumberText, ADecimalBelowTheRangeIsZero) {
    EXPECT_EQ(decimalFrom("1e-999"), 0);
    EXPECT_EQ(decimalFrom("0." + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(decimalFrom("0e999"), 0);
}

TEST(NumberText, JsonNumbersAreToldFromEverythingElse) {
    for (const char* const text :
         {"0", "-0", "10", "-1.5", "0.25", "1e5", "1E+5", "1e-05", "1e999", "0.0e0"}) {
        EXPECT_TRUE(isJsonNumber(text)) << text;
    }
    for (const char* const text :
         {"",   "-",  "+1",    "01",  "00",  "-01", ".5",   "5.",  "1.e5", "1e", "1e+",
          "1 ", " 1", "1e5.5", "0x1", "inf", "nan", "true", "1,5", "1e5x", "--1"}) {
        EXPECT_FALSE(isJsonNumber(text)) << text;
    }
}

TEST(NumberText, ADoubleIsShortAndNeverLooksLikeAnInteger) {
    EXPECT_EQ(textFrom(7200.0), "7200.0");
    EXPECT_EQ(textFrom(0.1), "0.1");
    EXPECT_EQ(textFrom(-0.0), "-0.0");
    EXPECT_EQ(textFrom(1e300), "1e+300");
    EXPECT_EQ(textFrom(std::int64_t{-7200}), "-7200");
}

TEST(NumberText, EveryFiniteDoubleComesBackExactly) {
    for (const double number :
         {0.1, 1.0 / 3, -2.5e-308, 5e-324, std::numeric_limits<double>::max(), 123456789.125}) {
        EXPECT_TRUE(isJsonNumber(textFrom(number)));
        EXPECT_EQ(decimalFrom(textFrom(number)), number);
    }
    EXPECT_TRUE(std::signbit(decimalFrom(textFrom(-0.0))));
}

TEST(NumberText, TheLocaleDoesNotMatter) {
    const CommaLocale locale;
    if (!CommaLocale::isInForce()) {
        GTEST_SKIP() << "no locale with a decimal comma, and the locales package to make one";
    }
    EXPECT_EQ(textFrom(1.5), "1.5");
    EXPECT_EQ(decimalFrom("1.5"), 1.5);
    EXPECT_EQ(decimalFrom("1,5"), 1);
    EXPECT_EQ(decimalFrom("1.5e999"), infinity);
    EXPECT_EQ(decimalFrom("1.5e-999"), 0);
}

} // namespace
