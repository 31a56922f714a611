#include "unit/keepawake/KeepAwakeTest.h"

namespace {

using namespace std::chrono_literals;
using simulated::desktop;
using testing::Each;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

using KeepAwakeClock = KeepAwakeTest;

TEST_F(KeepAwakeClock, EachSecondOfARunIsReportedAndThenItsEnd) {
    manager.start(3);
    pass(10s);
    EXPECT_THAT(reports(), ElementsAre(inactive, running(3), running(2), running(1), inactive));
    EXPECT_THAT(desktop().calls.of({"releasePowerAssertion"}),
                ElementsAre("releasePowerAssertion(1)"));
}

TEST_F(KeepAwakeClock, ATickIsNothingButAReport) {
    startAndForget(60);
    pass(1s);
    EXPECT_THAT(calls(), ElementsAre("keepAwakeDidChangeState(true, 59)"));
}

TEST_F(KeepAwakeClock, TheLastTickStops) {
    startAndForget(1);
    pass(1s);
    EXPECT_THAT(calls(), ElementsAre("releasePowerAssertion(1)", "Timer::invalidate()",
                                     "keepAwakeDidChangeState(false, 0)"));
    EXPECT_EQ(desktop().runLoop.timerCount(), 0U);
}

TEST_F(KeepAwakeClock, ARunEndsAtTheTickAtItsEnd) {
    startAndForget(2);
    pass(1999ms);
    EXPECT_TRUE(manager.isActive());
    pass(1ms);
    EXPECT_FALSE(manager.isActive());
}

TEST_F(KeepAwakeClock, ARunThatEndsBetweenTicksIsHeldUntilTheNextOne) {
    startAndForget(2.5);
    pass(2999ms);
    EXPECT_TRUE(manager.isActive());
    EXPECT_TRUE(displayStaysAwake());
    EXPECT_EQ(manager.remainingSeconds(), 0);
    pass(1ms);
    EXPECT_FALSE(manager.isActive());
    EXPECT_FALSE(displayStaysAwake());
    EXPECT_THAT(reports(), ElementsAre(running(1.5), running(0.5), inactive));
}

TEST_F(KeepAwakeClock, RemainingSecondsAreReadAtAnyMoment) {
    startAndForget(60);
    pass(125ms);
    EXPECT_EQ(manager.remainingSeconds(), 59.875);
    pass(59s);
    EXPECT_EQ(manager.remainingSeconds(), 0.875);
}

TEST_F(KeepAwakeClock, TwoHoursAreReportedSecondForSecond) {
    manager.start();
    pass(2h);
    ASSERT_EQ(reports().size(), 7202U);
    for (std::size_t second = 0; second < 7200; ++second) {
        ASSERT_EQ(reports()[second + 1], running(7200.0 - static_cast<double>(second)));
    }
    EXPECT_EQ(reports().back(), inactive);
}

TEST_F(KeepAwakeClock, SetBackLengthensTheRun) {
    startAndForget(60);
    desktop().clock.setWallClockBy(-1h);
    EXPECT_EQ(manager.remainingSeconds(), 3660);
    pass(1s);
    EXPECT_THAT(reports(), ElementsAre(running(3659)));
    pass(3658s);
    EXPECT_TRUE(displayStaysAwake());
    pass(1s);
    EXPECT_FALSE(displayStaysAwake());
}

TEST_F(KeepAwakeClock, SetForwardShortensTheRun) {
    startAndForget(3600);
    desktop().clock.setWallClockBy(3590s);
    pass(1s);
    EXPECT_THAT(reports(), ElementsAre(running(9)));
}

TEST_F(KeepAwakeClock, SetPastTheEndEndsTheRunAtTheNextTick) {
    startAndForget(3600);
    pass(250ms);
    desktop().clock.setWallClockBy(2h);
    EXPECT_TRUE(manager.isActive());
    EXPECT_EQ(manager.remainingSeconds(), 0);
    pass(749ms);
    EXPECT_THAT(reports(), IsEmpty());
    pass(1ms);
    EXPECT_THAT(reports(), ElementsAre(inactive));
}

TEST_F(KeepAwakeClock, SetToTheVeryEndEndsTheRunAtTheNextTick) {
    startAndForget(3600);
    desktop().clock.setWallClockBy(3599s);
    pass(1s);
    EXPECT_THAT(reports(), ElementsAre(inactive));
}

TEST_F(KeepAwakeClock, SetPastTheEndAndBackBeforeTheTickLeavesTheRunAsItWas) {
    startAndForget(60);
    desktop().clock.setWallClockBy(1h);
    desktop().clock.setWallClockBy(-1h);
    pass(1s);
    EXPECT_THAT(reports(), ElementsAre(running(59)));
}

TEST_F(KeepAwakeClock, SetBackMakesAnAdjustmentThatWouldHaveEndedTheRunOneThatShortensIt) {
    startAndForget(600);
    desktop().clock.setWallClockBy(-1h);
    manager.adjust(-1800);
    EXPECT_THAT(reports(), ElementsAre(running(2400)));
}

TEST_F(KeepAwakeClock, ASleepOverTheEndEndsTheRunAtTheFirstTickAfterWaking) {
    startAndForget(60);
    pass(10400ms);
    forget();
    desktop().clock.sleep(8h);
    EXPECT_TRUE(manager.isActive());
    EXPECT_EQ(manager.remainingSeconds(), 0);
    pass(599ms);
    EXPECT_THAT(reports(), IsEmpty());
    pass(1ms);
    EXPECT_THAT(reports(), ElementsAre(inactive));
    EXPECT_FALSE(displayStaysAwake());
}

TEST_F(KeepAwakeClock, AShorterSleepCountsAsTimeOfTheRun) {
    startAndForget(3600);
    desktop().clock.sleep(30min);
    pass(1s);
    EXPECT_THAT(reports(), ElementsAre(running(1799)));
}

TEST_F(KeepAwakeClock, WhileAMenuIsHeldOpenNothingIsReported) {
    startAndForget(60);
    desktop().runLoop.beginTracking();
    pass(10500ms);
    EXPECT_THAT(calls(), IsEmpty());
    EXPECT_EQ(manager.remainingSeconds(), 49.5);
}

TEST_F(KeepAwakeClock, AfterAMenuWasHeldOpenOneTickMakesUpForAllAndThePhaseIsKept) {
    startAndForget(60);
    desktop().runLoop.beginTracking();
    pass(10500ms);
    desktop().runLoop.endTracking();
    pass(0s);
    EXPECT_THAT(reports(), ElementsAre(running(49.5)));
    pass(500ms);
    EXPECT_THAT(reports(), ElementsAre(running(49.5), running(49)));
}

TEST_F(KeepAwakeClock, ARunThatEndsWhileAMenuIsHeldOpenIsHeldUntilTheNextTick) {
    startAndForget(5);
    desktop().runLoop.beginTracking();
    pass(1min);
    EXPECT_TRUE(manager.isActive());
    EXPECT_TRUE(displayStaysAwake());
    EXPECT_EQ(manager.remainingSeconds(), 0);
    desktop().runLoop.endTracking();
    pass(0s);
    EXPECT_THAT(reports(), ElementsAre(inactive));
    EXPECT_FALSE(displayStaysAwake());
}

TEST_F(KeepAwakeClock, AnotherTimersDelayIsMadeUpForByOneTick) {
    startAndForget(60);
    desktop().clock.advance(5500ms);
    pass(500ms);
    EXPECT_THAT(reports(), ElementsAre(running(54.5), running(54)));
}

TEST_F(KeepAwakeClock, NoReportIsEverNegative) {
    manager.start(2.5);
    desktop().clock.setWallClockBy(1h);
    manager.adjust(3600);
    pass(10s);
    manager.start(-1);
    pass(10s);
    EXPECT_THAT(reports(), Each(Field(&Report::remaining, testing::Ge(0))));
}

} // namespace
