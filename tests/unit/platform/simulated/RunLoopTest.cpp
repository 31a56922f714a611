#include "platform/MainQueue.h"
#include "platform/Timer.h"
#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

namespace {

using namespace std::chrono_literals;
using platform::RunLoopMode;
using platform::Timer;
using simulated::desktop;
using testing::ElementsAre;
using testing::IsEmpty;

simulated::RunLoop& runLoop() {
    return desktop().runLoop;
}

simulated::Clock::Duration uptime() {
    return desktop().clock.uptime();
}

std::shared_ptr<Timer> addTimer(Timer::Interval interval, std::function<void()> block,
                                RunLoopMode mode = RunLoopMode::commonModes) {
    auto timer = Timer::repeatingTimer(interval, std::move(block));
    platform::addTimerToMainRunLoop(timer, mode);
    return timer;
}

class SimulatedRunLoop : public testing::Test {
  protected:
    /// A block that notes when it ran.
    std::function<void()> note() {
        return [this] { fired.push_back(uptime()); };
    }
    std::function<void()> note(char name) {
        return [this, name] { names += name; };
    }

    std::vector<simulated::Clock::Duration> fired;
    std::string names;
};

using SimulatedRunLoopDeathTest = SimulatedRunLoop;

TEST_F(SimulatedRunLoop, FiresATimerOnceAnInterval) {
    addTimer(80ms, note());
    runLoop().run(320ms);
    EXPECT_THAT(fired, ElementsAre(80ms, 160ms, 240ms, 320ms));
}

TEST_F(SimulatedRunLoop, FiresATimerFirstOneIntervalAfterItWasAdded) {
    const auto timer = Timer::repeatingTimer(1s, note());
    runLoop().run(10s);
    platform::addTimerToMainRunLoop(timer, RunLoopMode::commonModes);
    runLoop().run(999'999'999ns);
    EXPECT_THAT(fired, IsEmpty());
    runLoop().run(1ns);
    EXPECT_THAT(fired, ElementsAre(11s));
}

TEST_F(SimulatedRunLoop, FiresNoTimerThatWasNotAdded) {
    const auto timer = Timer::repeatingTimer(1s, note());
    runLoop().run(10s);
    EXPECT_THAT(fired, IsEmpty());
    EXPECT_EQ(runLoop().timerCount(), 0U);
}

TEST_F(SimulatedRunLoop, FiresAScheduledTimerWithoutFurtherAdo) {
    const auto timer = Timer::scheduledRepeatingTimer(1s, note());
    runLoop().run(2s);
    EXPECT_THAT(fired, ElementsAre(1s, 2s));
}

TEST_F(SimulatedRunLoop, EndsAtItsTimeHoweverManyTimersFired) {
    addTimer(300ms, note());
    runLoop().run(1s);
    EXPECT_EQ(uptime(), 1s);
    runLoop().run(0s);
    EXPECT_EQ(uptime(), 1s);
    EXPECT_THAT(fired, ElementsAre(300ms, 600ms, 900ms));
}

TEST_F(SimulatedRunLoop, FiresSeveralTimersInTheOrderOfTheirTimes) {
    addTimer(300ms, note('a'));
    addTimer(200ms, note('b'));
    runLoop().run(500ms);
    EXPECT_EQ(names, "bab");
}

TEST_F(SimulatedRunLoop, FiresTimersOfTheSameTimeInTheOrderOfAdding) {
    addTimer(200ms, note('a'));
    addTimer(100ms, note('b'));
    runLoop().run(200ms);
    EXPECT_EQ(names, "bab");
}

TEST_F(SimulatedRunLoop, KeepsATimerThatNobodyElseHolds) {
    const std::weak_ptr<Timer> timer = addTimer(1s, note());
    EXPECT_FALSE(timer.expired());
    runLoop().run(2s);
    EXPECT_THAT(fired, ElementsAre(1s, 2s));
}

TEST_F(SimulatedRunLoop, LetsGoOfATimerThatIsInvalidated) {
    auto timer = addTimer(1s, note());
    const std::weak_ptr<Timer> watched = timer;
    timer->invalidate();
    timer.reset();
    EXPECT_TRUE(watched.expired());
    runLoop().run(2s);
    EXPECT_THAT(fired, IsEmpty());
}

TEST_F(SimulatedRunLoop, ASecondInvalidationChangesNothing) {
    const auto timer = addTimer(1s, note('a'));
    addTimer(1s, note('b'));
    timer->invalidate();
    timer->invalidate();
    runLoop().run(1s);
    EXPECT_EQ(names, "b");
}

TEST_F(SimulatedRunLoop, ABlockMayInvalidateItsOwnTimer) {
    std::weak_ptr<Timer> timer;
    timer = addTimer(1s, [&] {
        timer.lock()->invalidate();
        names += 'a'; // The block, and what it holds, is still there.
    });
    runLoop().run(3s);
    EXPECT_EQ(names, "a");
    EXPECT_TRUE(timer.expired());
}

TEST_F(SimulatedRunLoop, ABlockMayInvalidateAnotherTimerThatIsDue) {
    std::shared_ptr<Timer> other;
    addTimer(1s, [&] { other->invalidate(); });
    other = addTimer(1s, note());
    runLoop().run(1s);
    EXPECT_THAT(fired, IsEmpty());
}

TEST_F(SimulatedRunLoop, ABlockMayAddTimers) {
    bool isFirst = true;
    addTimer(1s, [&] {
        if (std::exchange(isFirst, false)) {
            addTimer(100ms, note());
        }
    });
    runLoop().run(1200ms);
    EXPECT_THAT(fired, ElementsAre(1100ms, 1200ms));
}

TEST_F(SimulatedRunLoop, ALateTimerFiresOnceForAllThatItMissedAndKeepsItsPhase) {
    addTimer(100ms, note());
    desktop().clock.advance(350ms);
    runLoop().run(50ms);
    EXPECT_THAT(fired, ElementsAre(350ms, 400ms));
}

TEST_F(SimulatedRunLoop, ATimerWhoseOwnBlockTakesLongMakesUpForItOnce) {
    addTimer(1s, [this] {
        note()();
        desktop().clock.advance(fired.size() == 1 ? 2500ms : 0ms);
    });
    runLoop().run(4s);
    EXPECT_THAT(fired, ElementsAre(1s, 3500ms, 4s));
}

TEST_F(SimulatedRunLoop, ABlockThatTakesLongMakesTheOthersLate) {
    addTimer(1s, [] { desktop().clock.advance(250ms); });
    addTimer(1100ms, note());
    runLoop().run(1200ms);
    EXPECT_THAT(fired, ElementsAre(1250ms));
    EXPECT_EQ(uptime(), 1250ms);
}

TEST_F(SimulatedRunLoop, OfSeveralLateTimersTheOneThatIsLongestDueFiresFirst) {
    addTimer(200ms, note('a'));
    addTimer(100ms, note('b'));
    desktop().clock.advance(250ms);
    runLoop().run(0s);
    EXPECT_EQ(names, "ba");
}

TEST_F(SimulatedRunLoop, ASleepDelaysNoTimer) {
    addTimer(1s, note());
    desktop().clock.sleep(1h);
    runLoop().run(1s);
    EXPECT_THAT(fired, ElementsAre(1s));
}

TEST_F(SimulatedRunLoop, AChangeOfTheClockMovesNoTimer) {
    addTimer(1s, note());
    desktop().clock.setWallClockBy(1h);
    runLoop().run(1s);
    desktop().clock.setWallClockBy(-2h);
    runLoop().run(1s);
    EXPECT_THAT(fired, ElementsAre(1s, 2s));
}

TEST_F(SimulatedRunLoop, WhileItTracksFiresTheTimersOfTheCommonModesAlone) {
    addTimer(100ms, note('c'));
    addTimer(100ms, note('d'), RunLoopMode::defaultMode);
    runLoop().beginTracking();
    runLoop().run(300ms);
    EXPECT_EQ(names, "ccc");
}

TEST_F(SimulatedRunLoop, AScheduledTimerIsOneOfTheDefaultMode) {
    const auto timer = Timer::scheduledRepeatingTimer(100ms, note());
    EXPECT_EQ(runLoop().timerCount(RunLoopMode::defaultMode), 1U);
    runLoop().beginTracking();
    runLoop().run(300ms);
    EXPECT_THAT(fired, IsEmpty());
}

TEST_F(SimulatedRunLoop, WhereTimersKnowNoModesFiresThemAllWhileItTracks) {
    addTimer(100ms, note('c'));
    addTimer(100ms, note('d'), RunLoopMode::defaultMode);
    runLoop().timersKnowModes = false;
    runLoop().beginTracking();
    runLoop().run(200ms);
    EXPECT_EQ(names, "cdcd");
}

TEST_F(SimulatedRunLoop, AfterTrackingATimerFiresOnceForAllThatItMissed) {
    addTimer(100ms, note(), RunLoopMode::defaultMode);
    runLoop().beginTracking();
    runLoop().run(350ms);
    runLoop().endTracking();
    EXPECT_THAT(fired, IsEmpty());
    runLoop().run(50ms);
    EXPECT_THAT(fired, ElementsAre(350ms, 400ms));
}

TEST_F(SimulatedRunLoop, CountsTimersByTheirMode) {
    const auto timer = addTimer(1s, note());
    addTimer(1s, note(), RunLoopMode::defaultMode);
    addTimer(1s, note(), RunLoopMode::defaultMode);
    EXPECT_EQ(runLoop().timerCount(), 3U);
    EXPECT_EQ(runLoop().timerCount(RunLoopMode::commonModes), 1U);
    EXPECT_EQ(runLoop().timerCount(RunLoopMode::defaultMode), 2U);
    timer->invalidate();
    EXPECT_EQ(runLoop().timerCount(RunLoopMode::commonModes), 0U);
}

TEST_F(SimulatedRunLoop, RunsTheTasksThatWaitBeforeTimePasses) {
    platform::dispatchAsyncOnMainQueue([&] {
        note()();
        platform::dispatchAsyncOnMainQueue(note());
    });
    runLoop().run(1s);
    EXPECT_THAT(fired, ElementsAre(0s, 0s));
}

TEST_F(SimulatedRunLoop, RunsWhatABlockPostsBeforeTheNextTimer) {
    addTimer(1s, [&] { platform::dispatchAsyncOnMainQueue(note('t')); });
    addTimer(1s, note('b'));
    runLoop().run(1s);
    EXPECT_EQ(names, "tb");
}

TEST_F(SimulatedRunLoop, CallsNameIntervalAndMode) {
    addTimer(80ms, note())->invalidate();
    Timer::scheduledRepeatingTimer(1.0s, note())->invalidate();
    EXPECT_THAT(desktop().calls.all(),
                ElementsAre("Timer::repeatingTimer(80 ms)", "addTimerToMainRunLoop(commonModes)",
                            "Timer::invalidate()", "Timer::repeatingTimer(1000 ms)",
                            "addTimerToMainRunLoop(defaultMode)", "Timer::invalidate()"));
}

TEST_F(SimulatedRunLoopDeathTest, ATimerThatIsAddedTwiceIsFatal) {
    const auto timer = addTimer(1s, note());
    EXPECT_DEATH(platform::addTimerToMainRunLoop(timer, RunLoopMode::defaultMode),
                 "added to the run loop twice");
}

TEST_F(SimulatedRunLoopDeathTest, AnInvalidTimerThatIsAddedIsFatal) {
    const auto timer = Timer::repeatingTimer(1s, note());
    timer->invalidate();
    EXPECT_DEATH(platform::addTimerToMainRunLoop(timer, RunLoopMode::defaultMode),
                 "is none, or is no longer valid");
    EXPECT_DEATH(platform::addTimerToMainRunLoop(nullptr, RunLoopMode::defaultMode),
                 "is none, or is no longer valid");
}

TEST_F(SimulatedRunLoopDeathTest, ATimerWithoutAnIntervalOrABlockIsFatal) {
    EXPECT_DEATH((void)Timer::repeatingTimer(0s, note()), "needs an interval and a block");
    EXPECT_DEATH((void)Timer::repeatingTimer(-1s, note()), "needs an interval and a block");
    EXPECT_DEATH((void)Timer::repeatingTimer(1s, {}), "needs an interval and a block");
}

TEST_F(SimulatedRunLoopDeathTest, TrackingTwiceOrNotAtAllIsFatal) {
    EXPECT_DEATH(runLoop().endTracking(), "is not tracking");
    runLoop().beginTracking();
    EXPECT_DEATH(runLoop().beginTracking(), "is tracking already");
}

TEST_F(SimulatedRunLoopDeathTest, RunningBackwardsIsFatal) {
    EXPECT_DEATH(runLoop().run(-1ns), "runs backwards");
}

TEST_F(SimulatedRunLoopDeathTest, ABlockOrATaskThatRunsTheRunLoopIsFatal) {
    addTimer(1s, [] { runLoop().run(0s); });
    EXPECT_DEATH(runLoop().run(1s), "runs the run loop that runs it");
    platform::dispatchAsyncOnMainQueue([] { runLoop().run(0s); });
    EXPECT_DEATH(runLoop().run(0s), "runs the run loop that runs it");
}

} // namespace
