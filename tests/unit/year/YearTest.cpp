#include "unit/year/Year.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

namespace {

std::uint64_t chosenSeed() {
    const char* const seed = std::getenv("QUELLBAR_YEAR_SEED");
    return seed == nullptr ? std::random_device()() : std::strtoull(seed, nullptr, 10);
}

TEST(SimulatedYear, OfUseSleepAndFaultsKeepsEveryRuleAtEveryStep) {
    const std::uint64_t seed = chosenSeed();
    std::printf("QUELLBAR_YEAR_SEED=%llu brings this year back\n",
                static_cast<unsigned long long>(seed));
    Year year(seed);
    for (int day = 1; day <= 365; ++day) {
        year.liveThroughADay();
        ASSERT_FALSE(HasFailure()) << "day " << day << " of seed " << seed << "\n" << year.story();
    }
    year.end();
}

} // namespace
