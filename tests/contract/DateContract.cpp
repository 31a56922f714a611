#include "contract/World.h"
#include "platform/Date.h"
#include "platform/Timer.h"

#include <limits>

namespace {

using namespace std::chrono_literals;
using platform::Date;

constexpr double infinity = std::numeric_limits<double>::infinity();

static_assert(Date{3.5} - Date{1} == 2.5);
static_assert(Date{1} - Date{3.5} == -2.5);
static_assert(Date{1} + 2.5 == Date{3.5});
static_assert(Date{1} < Date{infinity});
static_assert(Date{infinity} <= Date{infinity});

using DateContract = contract::ProgramTest;

TEST_F(DateContract, NowIsWhatTheUsersClockSays) {
    EXPECT_NEAR(Date::now().seconds, world_->wallTime(), 60);
}

TEST_F(DateContract, NowIsLaterAfterTimeHasPassed) {
    const Date start = Date::now();
    bool hasFired = false;
    const auto timer =
        platform::Timer::scheduledRepeatingTimer(20ms, [&hasFired] { hasFired = true; });
    EXPECT_TRUE(world_->turnUntil([&] { return hasFired; }));
    EXPECT_GT(Date::now() - start, 0);
    timer->invalidate();
}

} // namespace
