#include "unit/corners/CornerTest.h"

namespace {

using namespace std::chrono_literals;
using simulated::desktop;

/// A visit whose first poll is over, at the reference date: the time since is exact.
class CornerTime : public CornerTest {
  protected:
    CornerTime() {
        startAndForget();
        point(bottomRight);
        desktop().clock.setWallClockBy(-800'000'000s - pollInterval);
        poll();
    }

    /// Has the next poll see this much wall-clock time since the first.
    static void pollWhenClockSays(simulated::Clock::Duration sinceFirst) {
        desktop().clock.setWallClockBy(sinceFirst - pollInterval);
        poll();
    }
};

TEST_F(CornerTime, OfThreeTenthsOfASecondIsEnough) {
    pollWhenClockSays(300ms);
    EXPECT_EQ(reveals(), 1U);
}

TEST_F(CornerTime, OfAMomentLessIsNot) {
    pollWhenClockSays(299'999'999ns);
    EXPECT_EQ(reveals(), 0U);
    poll();
    EXPECT_EQ(reveals(), 1U);
}

TEST_F(CornerTime, CountsFromTheFirstPollAndNotFromAnyLaterOne) {
    poll(3);
    EXPECT_EQ(reveals(), 0U);
    poll();
    EXPECT_EQ(reveals(), 1U);
}

TEST_F(CornerTime, ByAClockSetForwardIsReachedAtTheNextPoll) {
    desktop().clock.setWallClockBy(1h);
    poll();
    EXPECT_EQ(reveals(), 1U);
}

TEST_F(CornerTime, ByAClockSetBackTakesThatMuchLonger) {
    desktop().clock.setWallClockBy(-2s);
    pass(2240ms);
    EXPECT_EQ(reveals(), 0U);
    pass(80ms);
    EXPECT_EQ(reveals(), 1U);
}

TEST_F(CornerTime, ByAClockSetBackStartsFromZeroInANewVisit) {
    desktop().clock.setWallClockBy(-1h);
    point(middle);
    poll();
    point(bottomRight);
    poll(5);
    EXPECT_EQ(reveals(), 1U);
}

TEST_F(CornerTime, GoesOnWhileTheMachineSleeps) {
    desktop().clock.sleep(8h);
    EXPECT_EQ(reveals(), 0U);
    poll();
    EXPECT_EQ(reveals(), 1U);
}

TEST_F(CornerTime, OfASleepAfterTheFiringFiresNotAgain) {
    poll(4);
    desktop().clock.sleep(8h);
    pass(5s);
    EXPECT_EQ(reveals(), 1U);
}

TEST_F(CornerTime, GoesOnWhileAMenuIsHeldOpen) {
    desktop().runLoop.beginTracking();
    poll(4);
    EXPECT_EQ(reveals(), 1U);
}

TEST_F(CornerTime, ThatAnApplicationTakesToAnswerFiresNotAgain) {
    desktop().workspace.launch("Slow").answersAfter = 5s;
    poll(4);
    EXPECT_EQ(reveals(), 1U);
    pass(10s);
    EXPECT_EQ(reveals(), 1U);
    EXPECT_EQ(desktop().runLoop.timerCount(), 1U);
}

} // namespace
