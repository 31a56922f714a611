#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

namespace {

using namespace std::chrono_literals;
using simulated::desktop;

TEST(SimulatedClock, StandsStillUntilItIsMoved) {
    EXPECT_EQ(desktop().clock.uptime(), 0s);
    desktop().clock.advance(1500ms);
    desktop().clock.advance(0s);
    desktop().clock.advance(1ns);
    EXPECT_EQ(desktop().clock.uptime(), 1'500'000'001ns);
}

TEST(SimulatedClockDeathTest, TurnedBackIsFatal) {
    EXPECT_DEATH(desktop().clock.advance(-1ns), "the clock is turned back");
}

} // namespace
