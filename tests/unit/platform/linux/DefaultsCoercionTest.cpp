#include "platform/linux/defaults/DefaultsCoercion.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using platform::Data;
using platform::DefaultsValue;
using platform::StringArray;

constexpr double infinity = std::numeric_limits<double>::infinity();

bool boolFrom(const DefaultsValue& value) {
    return platform::linux_host::boolFrom(&value);
}

double doubleFrom(const DefaultsValue& value) {
    return platform::linux_host::doubleFrom(&value);
}

DefaultsValue text(const char* characters) {
    return std::string(characters);
}

TEST(DefaultsCoercion, NoValueIsFalseAndZero) {
    EXPECT_FALSE(platform::linux_host::boolFrom(nullptr));
    EXPECT_EQ(platform::linux_host::doubleFrom(nullptr), 0);
}

TEST(DefaultsCoercion, NumbersOtherThanZeroAreTrue) {
    EXPECT_TRUE(boolFrom(true));
    EXPECT_FALSE(boolFrom(false));
    EXPECT_TRUE(boolFrom(std::int64_t{-1}));
    EXPECT_FALSE(boolFrom(std::int64_t{0}));
    EXPECT_TRUE(boolFrom(0.5));
    EXPECT_FALSE(boolFrom(-0.0));
    EXPECT_TRUE(boolFrom(std::numeric_limits<double>::quiet_NaN()));
}

TEST(DefaultsCoercion, ThreeWordsAreTrueInAnyCase) {
    for (const char* const word : {"yes", "YES", "Yes", "true", "TRUE", "tRuE", "1"}) {
        EXPECT_TRUE(boolFrom(text(word))) << word;
    }
    for (const char* const word : {"", "no", "y", "t", "on", "2", "01", "1.0", " yes", "yes ",
                                   "truee", "false", "0", "ye\xc5\xbf"}) {
        EXPECT_FALSE(boolFrom(text(word))) << word;
    }
}

TEST(DefaultsCoercion, EveryKindOfNumberIsADouble) {
    EXPECT_EQ(doubleFrom(true), 1);
    EXPECT_EQ(doubleFrom(false), 0);
    EXPECT_EQ(doubleFrom(std::int64_t{7200}), 7200);
    EXPECT_EQ(doubleFrom(-1.5), -1.5);
    EXPECT_EQ(doubleFrom(infinity), infinity);
}

TEST(DefaultsCoercion, TextThatBeginsWithANumberIsThatNumber) {
    EXPECT_EQ(doubleFrom(text("7200")), 7200);
    EXPECT_EQ(doubleFrom(text("1.5 hours")), 1.5);
    EXPECT_EQ(doubleFrom(text("1e999")), infinity);
    EXPECT_EQ(doubleFrom(text("hours")), 0);
    EXPECT_EQ(doubleFrom(text("yes")), 0);
}

TEST(DefaultsCoercion, DataAndArraysAreFalseAndZero) {
    EXPECT_FALSE(boolFrom(Data{1}));
    EXPECT_FALSE(boolFrom(StringArray{"1"}));
    EXPECT_EQ(doubleFrom(Data{'1'}), 0);
    EXPECT_EQ(doubleFrom(StringArray{"1"}), 0);
}

} // namespace
