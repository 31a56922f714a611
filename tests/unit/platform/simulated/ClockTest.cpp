#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

namespace {

using namespace std::chrono_literals;
using platform::Date;
using simulated::desktop;

TEST(SimulatedClock, StandsStillUntilItIsMoved) {
    EXPECT_EQ(desktop().clock.uptime(), 0s);
    EXPECT_EQ(Date::now().seconds, 800'000'000);
    desktop().clock.advance(1500ms);
    desktop().clock.advance(0s);
    desktop().clock.advance(1ns);
    EXPECT_EQ(desktop().clock.uptime(), 1'500'000'001ns);
}

TEST(SimulatedClock, PassingTimeMovesBothTimes) {
    desktop().clock.advance(1500ms);
    EXPECT_EQ(desktop().clock.uptime(), 1500ms);
    EXPECT_EQ(Date::now().seconds, 800'000'001.5);
    EXPECT_EQ(desktop().clock.wallTime(), Date::now());
}

TEST(SimulatedClock, AsleepMovesTheWallClockAlone) {
    desktop().clock.sleep(1h);
    EXPECT_EQ(desktop().clock.uptime(), 0s);
    EXPECT_EQ(Date::now().seconds, 800'003'600);
}

TEST(SimulatedClock, CanBeSetForwardAndBackWithoutTimePassing) {
    desktop().clock.setWallClockBy(90min);
    EXPECT_EQ(Date::now().seconds, 800'005'400);
    desktop().clock.setWallClockBy(-2h);
    EXPECT_EQ(Date::now().seconds, 799'998'200);
    EXPECT_EQ(desktop().clock.uptime(), 0s);
}

TEST(SimulatedClock, CanBeSetToADateBeforeTheReferenceDate) {
    desktop().clock.setWallClockBy(-800'000'001s - 500ms);
    EXPECT_EQ(Date::now().seconds, -1.5);
}

TEST(SimulatedClock, ManySmallStepsGoAsFarAsOneLongOne) {
    for (int step = 0; step < 1'000'000; ++step) {
        desktop().clock.advance(80ms);
    }
    EXPECT_EQ(Date::now().seconds, 800'080'000);
}

TEST(SimulatedClock, TellsBinaryFractionsOfASecondExactly) {
    const Date start = Date::now();
    desktop().clock.advance(15'625us);
    EXPECT_EQ(Date::now() - start, 1.0 / 64);
}

TEST(SimulatedClockDeathTest, TurnedBackIsFatal) {
    EXPECT_DEATH(desktop().clock.advance(-1ns), "the clock is turned back");
    EXPECT_DEATH(desktop().clock.sleep(-1ns), "the clock is turned back");
}

} // namespace
