#include "contract/World.h"
#include "platform/Date.h"
#include "platform/Timer.h"

namespace {

using namespace std::chrono_literals;
using platform::RunLoopMode;
using platform::Timer;

class TimerContract : public contract::ProgramTest {
  protected:
    void TearDown() override {
        for (const auto& timer : timers_) {
            timer->invalidate();
        }
    }

    std::shared_ptr<Timer> makeTimer(Timer::Interval interval, std::function<void()> block) {
        timers_.push_back(Timer::repeatingTimer(interval, std::move(block)));
        return timers_.back();
    }
    std::shared_ptr<Timer> addTimer(Timer::Interval interval, std::function<void()> block,
                                    RunLoopMode mode = RunLoopMode::commonModes) {
        const auto timer = makeTimer(interval, std::move(block));
        platform::addTimerToMainRunLoop(timer, mode);
        return timer;
    }
    std::function<void()> countIn(int& count) {
        return [&count] { ++count; };
    }

    /// Lets so much time pass that a timer of 20 ms fires several times.
    [[nodiscard]] bool wait() {
        int fired = 0;
        const auto timer = addTimer(100ms, countIn(fired));
        const bool hasPassed = world_->turnUntil([&] { return fired >= 2; });
        timer->invalidate();
        return hasPassed;
    }

    int fired_ = 0;

  private:
    std::vector<std::shared_ptr<Timer>> timers_;
};

TEST_F(TimerContract, ATimerThatIsAddedFiresAgainAndAgain) {
    addTimer(20ms, countIn(fired_));
    EXPECT_TRUE(world_->turnUntil([&] { return fired_ >= 3; }));
}

TEST_F(TimerContract, ATimerOfTheDefaultModeFiresToo) {
    addTimer(20ms, countIn(fired_), RunLoopMode::defaultMode);
    EXPECT_TRUE(world_->turnUntil([&] { return fired_ >= 3; }));
}

TEST_F(TimerContract, AScheduledTimerIsAddedAlready) {
    const auto timer = Timer::scheduledRepeatingTimer(20ms, countIn(fired_));
    EXPECT_TRUE(world_->turnUntil([&] { return fired_ >= 3; }));
    timer->invalidate();
}

TEST_F(TimerContract, ATimerThatNoRunLoopKnowsDoesNotFire) {
    makeTimer(20ms, countIn(fired_));
    EXPECT_TRUE(wait());
    EXPECT_EQ(fired_, 0);
}

TEST_F(TimerContract, ATimerDoesNotFireBeforeItsIntervalIsOver) {
    const platform::Date start = platform::Date::now();
    addTimer(50ms, countIn(fired_));
    EXPECT_EQ(fired_, 0);
    EXPECT_TRUE(world_->turnUntil([&] { return fired_ > 0; }));
    EXPECT_GE(platform::Date::now() - start, 0.049);
}

TEST_F(TimerContract, TheShorterOfTwoTimersFiresMoreOften) {
    int longer = 0;
    addTimer(200ms, countIn(longer));
    addTimer(20ms, countIn(fired_));
    EXPECT_TRUE(world_->turnUntil([&] { return longer >= 2; }));
    EXPECT_GT(fired_, longer);
}

TEST_F(TimerContract, TheRunLoopKeepsATimerThatNobodyElseHolds) {
    auto timer = Timer::scheduledRepeatingTimer(20ms, countIn(fired_));
    Timer& kept = *timer;
    timer.reset();
    EXPECT_TRUE(world_->turnUntil([&] { return fired_ >= 3; }));
    kept.invalidate();
}

TEST_F(TimerContract, ATimerThatIsInvalidatedFiresNoMore) {
    const auto timer = addTimer(20ms, countIn(fired_));
    EXPECT_TRUE(world_->turnUntil([&] { return fired_ >= 1; }));
    timer->invalidate();
    const int before = fired_;
    EXPECT_TRUE(wait());
    EXPECT_EQ(fired_, before);
}

TEST_F(TimerContract, ASecondInvalidationChangesNothing) {
    const auto timer = addTimer(20ms, countIn(fired_));
    timer->invalidate();
    timer->invalidate();
    EXPECT_TRUE(wait());
    EXPECT_EQ(fired_, 0);
}

TEST_F(TimerContract, ABlockMayInvalidateItsOwnTimer) {
    std::weak_ptr<Timer> timer;
    timer = addTimer(20ms, [&] {
        timer.lock()->invalidate();
        ++fired_;
    });
    EXPECT_TRUE(wait());
    EXPECT_EQ(fired_, 1);
}

} // namespace
