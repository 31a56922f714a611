#include "unit/keepawake/KeepAwakeTest.h"

namespace {

using namespace std::chrono_literals;
using simulated::desktop;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

using KeepAwakeStop = KeepAwakeTest;

TEST_F(KeepAwakeStop, ReleasesInvalidatesAndReports) {
    startAndForget(60);
    manager.stop();
    EXPECT_THAT(calls(), ElementsAre("releasePowerAssertion(1)", "Timer::invalidate()",
                                     "keepAwakeDidChangeState(false, 0)"));
    EXPECT_FALSE(manager.isActive());
    EXPECT_EQ(manager.remainingSeconds(), 0);
    EXPECT_FALSE(displayStaysAwake());
}

TEST_F(KeepAwakeStop, IsInactiveFromTheReleaseOn) {
    startAndForget(60);
    desktop().calls.during("releasePowerAssertion(1)", [this] { EXPECT_TRUE(manager.isActive()); });
    desktop().calls.during("Timer::invalidate()", [this] {
        EXPECT_FALSE(manager.isActive());
        EXPECT_EQ(manager.remainingSeconds(), 0);
    });
    manager.stop();
}

TEST_F(KeepAwakeStop, WhileInactiveReportsAndReleasesNothing) {
    manager.stop();
    EXPECT_THAT(calls(), ElementsAre("keepAwakeDidChangeState(false, 0)"));
}

TEST_F(KeepAwakeStop, TwiceReleasesOnceAndReportsTwice) {
    startAndForget(60);
    manager.stop();
    manager.stop();
    EXPECT_THAT(calls(), ElementsAre("releasePowerAssertion(1)", "Timer::invalidate()",
                                     "keepAwakeDidChangeState(false, 0)",
                                     "keepAwakeDidChangeState(false, 0)"));
}

TEST_F(KeepAwakeStop, IsFollowedByNoTick) {
    startAndForget(60);
    pass(500ms);
    manager.stop();
    forget();
    EXPECT_EQ(desktop().runLoop.timerCount(), 0U);
    pass(2min);
    EXPECT_THAT(calls(), IsEmpty());
}

TEST_F(KeepAwakeStop, IsDoneEvenWhereTheReleaseIsRefused) {
    startAndForget(60);
    desktop().powerAssertions.releaseStatus = platform::kIOReturnError;
    manager.stop();
    EXPECT_FALSE(manager.isActive());
    EXPECT_THAT(reports(), ElementsAre(inactive));
    EXPECT_EQ(desktop().runLoop.timerCount(), 0U);
}

TEST_F(KeepAwakeStop, DoesNotReleaseAgainWhatTheSystemRefusedToRelease) {
    startAndForget(60);
    desktop().powerAssertions.releaseStatus = platform::kIOReturnError;
    manager.stop();
    desktop().powerAssertions.releaseStatus = platform::kIOReturnSuccess;
    forget();
    manager.start(60);
    manager.stop();
    EXPECT_THAT(desktop().calls.of({"releasePowerAssertion"}),
                ElementsAre("releasePowerAssertion(2)"));
    EXPECT_THAT(desktop().powerAssertions.held(), ElementsAre(Pair(1U, testing::_)));
}

TEST_F(KeepAwakeStop, LeavesTheManagerReadyForAnotherRun) {
    startAndForget(60);
    manager.stop();
    forget();
    manager.start(2);
    pass(2s);
    EXPECT_THAT(reports(), ElementsAre(inactive, running(2), running(1), inactive));
}

} // namespace
