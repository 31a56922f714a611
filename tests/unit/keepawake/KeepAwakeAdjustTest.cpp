#include "unit/keepawake/KeepAwakeTest.h"

#include <limits>

namespace {

using namespace std::chrono_literals;
using simulated::desktop;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr double infinity = std::numeric_limits<double>::infinity();

using KeepAwakeAdjust = KeepAwakeTest;

TEST_F(KeepAwakeAdjust, WhileInactiveDoesNothing) {
    manager.adjust(1800);
    manager.adjust(-1800);
    EXPECT_THAT(calls(), IsEmpty());
    EXPECT_FALSE(manager.isActive());
}

TEST_F(KeepAwakeAdjust, AfterARunDoesNothing) {
    startAndForget(60);
    manager.stop();
    forget();
    manager.adjust(1800);
    EXPECT_THAT(calls(), IsEmpty());
}

TEST_F(KeepAwakeAdjust, LengtheningMovesTheEndAndReportsOnce) {
    startAndForget(600);
    manager.adjust(1800);
    EXPECT_THAT(calls(), ElementsAre("keepAwakeDidChangeState(true, 2400)"));
    EXPECT_EQ(manager.remainingSeconds(), 2400);
}

TEST_F(KeepAwakeAdjust, ShorteningBy30Of45MinutesLeaves15AndTheAssertionAsItWas) {
    startAndForget(2700);
    manager.adjust(-1800);
    EXPECT_THAT(calls(), ElementsAre("keepAwakeDidChangeState(true, 900)"));
    EXPECT_TRUE(displayStaysAwake());
}

TEST_F(KeepAwakeAdjust, ShorteningPastNowEndsTheRunAtOnce) {
    startAndForget(600);
    manager.adjust(-1800);
    EXPECT_THAT(calls(), ElementsAre("releasePowerAssertion(1)", "Timer::invalidate()",
                                     "keepAwakeDidChangeState(false, 0)"));
    EXPECT_FALSE(displayStaysAwake());
}

TEST_F(KeepAwakeAdjust, ShorteningToExactlyNowEndsTheRun) {
    startAndForget(1800);
    manager.adjust(-1800);
    EXPECT_THAT(reports(), ElementsAre(inactive));
}

TEST_F(KeepAwakeAdjust, ShorteningToJustAfterNowLetsTheRunGoOn) {
    startAndForget(1800.25);
    manager.adjust(-1800);
    EXPECT_THAT(reports(), ElementsAre(running(0.25)));
    EXPECT_TRUE(manager.isActive());
}

TEST_F(KeepAwakeAdjust, TheTicksKeepTheirPhase) {
    startAndForget(60);
    pass(700ms);
    manager.adjust(1800);
    forget();
    pass(299ms);
    EXPECT_THAT(reports(), IsEmpty());
    pass(1ms);
    EXPECT_THAT(reports(), ElementsAre(running(1859)));
}

TEST_F(KeepAwakeAdjust, ARunThatWasLengthenedEndsThatMuchLater) {
    startAndForget(2);
    manager.adjust(2);
    forget();
    pass(4s);
    EXPECT_THAT(reports(), ElementsAre(running(3), running(2), running(1), inactive));
}

TEST_F(KeepAwakeAdjust, HasNoUpperLimitAndDoesNotRound) {
    startAndForget(60.5);
    manager.adjust(1'000'000'000.25);
    EXPECT_EQ(manager.remainingSeconds(), 1'000'000'060.75);
}

TEST_F(KeepAwakeAdjust, ByNothingReports) {
    startAndForget(60);
    manager.adjust(0);
    EXPECT_THAT(reports(), ElementsAre(running(60)));
}

TEST_F(KeepAwakeAdjust, RescuesARunWhoseEndHasPassedButWhichNoTickHasEnded) {
    startAndForget(0.5);
    pass(750ms);
    manager.adjust(1800);
    EXPECT_THAT(reports(), ElementsAre(running(1799.75)));
}

TEST_F(KeepAwakeAdjust, EndsARunWhoseEndHasPassedByMoreThanIsAdded) {
    startAndForget(0.5);
    pass(750ms);
    manager.adjust(0.125);
    EXPECT_THAT(reports(), ElementsAre(inactive));
}

TEST_F(KeepAwakeAdjust, AddingHalfAnHourToAnIdleManagerGivesTheDefaultAndHalfAnHour) {
    manager.start();
    manager.adjust(1800);
    EXPECT_THAT(reports(), ElementsAre(inactive, running(7200), running(9000)));
}

TEST_F(KeepAwakeAdjust, ForwardWithoutEndLeavesARunWithoutEnd) {
    startAndForget(60);
    manager.adjust(infinity);
    EXPECT_THAT(reports(), ElementsAre(running(infinity)));
    pass(1h);
    EXPECT_TRUE(displayStaysAwake());
}

TEST_F(KeepAwakeAdjust, BackWithoutEndEndsTheRun) {
    startAndForget(60);
    manager.adjust(-infinity);
    EXPECT_THAT(reports(), ElementsAre(inactive));
}

TEST_F(KeepAwakeAdjust, ByWhatIsNoNumberReportsNothingLeftAndEndsAtTheNextTick) {
    startAndForget(60);
    manager.adjust(std::numeric_limits<double>::quiet_NaN());
    EXPECT_THAT(reports(), ElementsAre(running(0)));
    pass(1s);
    EXPECT_THAT(reports(), ElementsAre(running(0), inactive));
    EXPECT_FALSE(displayStaysAwake());
}

} // namespace
