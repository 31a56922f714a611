#include "platform/Date.h"

#include <gtest/gtest.h>

#include <ctime>

TEST(Date, CountsFromTheBeginningOf2001) {
    const std::time_t before = std::time(nullptr);
    const platform::Date now = platform::Date::now();
    const std::time_t after = std::time(nullptr) + 1;
    std::tm moment{};
    moment.tm_year = 2001 - 1900;
    moment.tm_mday = 1;
    const auto reference = static_cast<double>(::timegm(&moment));
    EXPECT_GE(now.seconds + reference, static_cast<double>(before));
    EXPECT_LE(now.seconds + reference, static_cast<double>(after));
}
