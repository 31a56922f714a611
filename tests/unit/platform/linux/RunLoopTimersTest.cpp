#include "platform/linux/timers/RunLoopTimers.h"

#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;
using platform::RunLoopMode;
using platform::Timer;
using platform::linux_host::RunLoopTimers;

class RunLoopTimersTest : public testing::Test {
  protected:
    std::shared_ptr<Timer> add(Timer::Interval interval, std::function<void()> block,
                               RunLoopMode mode = RunLoopMode::commonModes) {
        auto timer = Timer::repeatingTimer(interval, std::move(block));
        timers.add(timer, mode, start);
        return timer;
    }
    std::function<void()> count() {
        return [this] { ++fired; };
    }

    const RunLoopTimers::Clock::time_point start{1000s};
    RunLoopTimers timers;
    int fired = 0;
};

TEST_F(RunLoopTimersTest, WithoutATimerThereIsNoDeadline) {
    EXPECT_EQ(timers.nextDeadline(), std::nullopt);
    timers.remove(*add(80ms, count()));
    EXPECT_EQ(timers.nextDeadline(), std::nullopt);
}

TEST_F(RunLoopTimersTest, TheDeadlineIsThatOfTheEarliestTimer) {
    add(1s, count());
    add(80ms, count());
    EXPECT_EQ(timers.nextDeadline(), start + 80ms);
}

TEST_F(RunLoopTimersTest, ATimerFiresAtItsDeadlineAndNotBefore) {
    add(80ms, count());
    timers.fireDue(start + 79ms);
    EXPECT_EQ(fired, 0);
    timers.fireDue(start + 80ms);
    EXPECT_EQ(fired, 1);
    timers.fireDue(start + 80ms);
    EXPECT_EQ(fired, 1);
}

TEST_F(RunLoopTimersTest, MissedFiringsAreMadeUpByOneAndTheBeatIsKept) {
    add(80ms, count());
    timers.fireDue(start + 250ms);
    EXPECT_EQ(fired, 1);
    EXPECT_EQ(timers.nextDeadline(), start + 320ms);
}

TEST_F(RunLoopTimersTest, EveryTimerThatIsDueFiresEarliestFirst) {
    std::string order;
    add(90ms, [&] { order += 'b'; });
    add(80ms, [&] { order += 'a'; });
    add(1s, [&] { order += 'c'; });
    timers.fireDue(start + 100ms);
    EXPECT_EQ(order, "ab");
}

TEST_F(RunLoopTimersTest, ABlockMayTakeEveryTimerAway) {
    std::shared_ptr<Timer> own;
    const auto other = add(90ms, count());
    own = add(80ms, [&] {
        timers.remove(*other);
        timers.remove(*std::exchange(own, nullptr));
    });
    timers.fireDue(start + 100ms);
    EXPECT_EQ(fired, 0);
    EXPECT_EQ(timers.nextDeadline(), std::nullopt);
}

TEST_F(RunLoopTimersTest, ABlockMayAddATimer) {
    add(80ms, [&] { add(10ms, count()); });
    timers.fireDue(start + 80ms);
    EXPECT_EQ(fired, 1);
}

TEST_F(RunLoopTimersTest, TellsWhetherATimerOfTheDefaultModeHasFired) {
    add(80ms, count());
    add(1s, count(), RunLoopMode::defaultMode);
    EXPECT_FALSE(timers.fireDue(start + 80ms));
    EXPECT_TRUE(timers.fireDue(start + 1s));
}

} // namespace
