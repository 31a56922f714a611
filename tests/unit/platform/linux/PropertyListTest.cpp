#include "platform/linux/defaults/PropertyList.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using platform::Data;
using platform::DefaultsValue;
using platform::StringArray;
using platform::linux_host::defaultsValueFrom;
using platform::linux_host::jsonFrom;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

struct Example {
    DefaultsValue value;
    std::string json;
};

const std::vector<Example> examples{
    {true, "true"},
    {false, "false"},
    {std::int64_t{7200}, "7200"},
    {7200.0, "7200.0"},
    {0.1, "0.1"},
    {infinity, R"({"double": "inf"})"},
    {-infinity, R"({"double": "-inf"})"},
    {std::string("a \"word\""), R"("a \"word\"")"},
    {std::string(), R"("")"},
    {Data{}, R"({"data": ""})"},
    {Data{1, 2, 255}, R"({"data": "AQL/"})"},
    {StringArray{}, "[]"},
    {StringArray{"topLeft", ""}, R"(["topLeft", ""])"},
};

TEST(PropertyList, EveryTypeHasAFormOfItsOwn) {
    for (const auto& [value, json] : examples) {
        EXPECT_EQ(jsonFrom(value), json);
    }
}

TEST(PropertyList, EveryValueComesBackWithItsType) {
    for (const auto& [value, json] : examples) {
        EXPECT_EQ(defaultsValueFrom(json), value) << json;
    }
}

TEST(PropertyList, ADoubleThatIsNoNumberComesBackAsOne) {
    const auto value = defaultsValueFrom(jsonFrom(notANumber));
    ASSERT_TRUE(value && std::holds_alternative<double>(*value));
    EXPECT_TRUE(std::isnan(std::get<double>(*value)));
}

TEST(PropertyList, NumbersThatNoIntegerHoldsAreDoubles) {
    EXPECT_EQ(defaultsValueFrom("9223372036854775808"), DefaultsValue(9223372036854775808.0));
    EXPECT_EQ(defaultsValueFrom("1e3"), DefaultsValue(1000.0));
    EXPECT_EQ(defaultsValueFrom("1e999"), DefaultsValue(infinity));
    EXPECT_EQ(defaultsValueFrom("-1e999"), DefaultsValue(-infinity));
    EXPECT_EQ(defaultsValueFrom("1e-999"), DefaultsValue(0.0));
}

TEST(PropertyList, AStringThatNamesInfinityIsAString) {
    EXPECT_EQ(defaultsValueFrom(R"("inf")"), DefaultsValue(std::string("inf")));
}

TEST(PropertyList, WhatNoSettingCanBeIsNoValue) {
    for (const char* const json :
         {"null", "[1]", R"(["a", 1])", "[[]]", "[null]", "{}", R"({"data": 1})",
          R"({"data": "A"})", R"({"data": "AQID", "more": 1})", R"({"Data": "AQID"})",
          R"({"double": "Inf"})", R"({"double": 1.5})", R"({"double": "1.5"})",
          R"([{"data": "AQID"}])"}) {
        EXPECT_EQ(defaultsValueFrom(json), std::nullopt) << json;
    }
}

} // namespace
