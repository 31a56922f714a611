#include "unit/keepawake/KeepAwakeTest.h"

namespace {

using namespace std::chrono_literals;
using simulated::desktop;
using testing::ElementsAre;
using testing::IsEmpty;

using KeepAwakeDelegate = KeepAwakeTest;

TEST_F(KeepAwakeDelegate, IsNotNeeded) {
    manager.delegate.reset();
    manager.start(2);
    EXPECT_TRUE(displayStaysAwake());
    manager.adjust(1);
    pass(2s);
    EXPECT_EQ(manager.remainingSeconds(), 1);
    pass(1s);
    EXPECT_FALSE(displayStaysAwake());
    manager.stop();
    EXPECT_THAT(reports(), IsEmpty());
}

TEST_F(KeepAwakeDelegate, IsNotKeptAlive) {
    manager.start(60);
    const std::weak_ptr<Observer> watched = observer;
    observer.reset();
    EXPECT_TRUE(watched.expired());
}

TEST_F(KeepAwakeDelegate, MayGoDuringARunWhichThenGoesOnUnheard) {
    manager.start(2);
    observer.reset();
    desktop().calls.clear();
    pass(1s);
    EXPECT_THAT(calls(), IsEmpty());
    EXPECT_TRUE(displayStaysAwake());
    pass(1s);
    EXPECT_THAT(calls(), ElementsAre("releasePowerAssertion(1)", "Timer::invalidate()"));
}

TEST_F(KeepAwakeDelegate, MayBeReplacedDuringARun) {
    startAndForget(60);
    const auto successor = std::make_shared<Observer>();
    manager.delegate = successor;
    pass(1s);
    EXPECT_THAT(successor->reports, ElementsAre(running(59)));
    EXPECT_THAT(reports(), IsEmpty());
}

TEST_F(KeepAwakeDelegate, LivesUntilItsReportIsDone) {
    const std::weak_ptr<Observer> watched = observer;
    desktop().calls.during("keepAwakeDidChangeState(false, 0)", [&] {
        observer.reset();
        EXPECT_FALSE(watched.expired());
    });
    manager.stop();
    EXPECT_TRUE(watched.expired());
}

TEST_F(KeepAwakeDelegate, ReadsTheSameStateThatItIsTold) {
    desktop().calls.during("keepAwakeDidChangeState(true, 60)", [this] {
        EXPECT_TRUE(manager.isActive());
        EXPECT_EQ(manager.remainingSeconds(), 60);
        EXPECT_TRUE(displayStaysAwake());
        EXPECT_EQ(desktop().runLoop.timerCount(), 1U);
    });
    manager.start(60);
    desktop().calls.during("keepAwakeDidChangeState(false, 0)", [this] {
        EXPECT_FALSE(manager.isActive());
        EXPECT_EQ(manager.remainingSeconds(), 0);
        EXPECT_FALSE(displayStaysAwake());
        EXPECT_EQ(desktop().runLoop.timerCount(), 0U);
    });
    manager.stop();
}

} // namespace
