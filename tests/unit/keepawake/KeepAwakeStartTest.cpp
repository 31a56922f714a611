#include "settings/Preferences.h"
#include "unit/keepawake/KeepAwakeTest.h"

namespace {

using namespace std::chrono_literals;
using simulated::desktop;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

using KeepAwakeStart = KeepAwakeTest;

TEST_F(KeepAwakeStart, BeforeItNothingIsHeldAndNobodyIsTold) {
    EXPECT_FALSE(manager.isActive());
    EXPECT_EQ(manager.remainingSeconds(), 0);
    pass(10s);
    EXPECT_THAT(calls(), IsEmpty());
}

TEST_F(KeepAwakeStart, TakesItsStepsInOrder) {
    manager.start(60);
    EXPECT_THAT(
        calls(),
        ElementsAre("keepAwakeDidChangeState(false, 0)",
                    "createPowerAssertion(NoDisplaySleepAssertion, 255, Quellbar Keep Awake)",
                    "Timer::repeatingTimer(1000 ms)", "addTimerToMainRunLoop(defaultMode)",
                    "keepAwakeDidChangeState(true, 60)"));
}

TEST_F(KeepAwakeStart, TellsThatItIsInactiveAndThenThatItRuns) {
    manager.start(60);
    EXPECT_THAT(reports(), ElementsAre(inactive, running(60)));
    EXPECT_TRUE(manager.isActive());
    EXPECT_EQ(manager.remainingSeconds(), 60);
}

TEST_F(KeepAwakeStart, KeepsTheDisplayAwakeUnderTheProgramsName) {
    manager.start(60);
    EXPECT_TRUE(displayStaysAwake());
    const auto& held = desktop().powerAssertions.held();
    ASSERT_EQ(held.size(), 1U);
    EXPECT_EQ(held.begin()->second.type, "NoDisplaySleepAssertion");
    EXPECT_EQ(held.begin()->second.level, 255U);
    EXPECT_EQ(held.begin()->second.name, "Quellbar Keep Awake");
}

TEST_F(KeepAwakeStart, IsActiveOnlyOnceTheAssertionIsHeld) {
    desktop().calls.during(
        "createPowerAssertion(NoDisplaySleepAssertion, 255, Quellbar Keep Awake)",
        [this] { EXPECT_FALSE(manager.isActive()); });
    desktop().calls.during("Timer::repeatingTimer(1000 ms)", [this] {
        EXPECT_TRUE(manager.isActive());
        EXPECT_EQ(manager.remainingSeconds(), 60);
    });
    manager.start(60);
}

TEST_F(KeepAwakeStart, SchedulesOneTimerInTheDefaultMode) {
    manager.start(60);
    EXPECT_EQ(desktop().runLoop.timerCount(platform::RunLoopMode::defaultMode), 1U);
    EXPECT_EQ(desktop().runLoop.timerCount(), 1U);
}

TEST_F(KeepAwakeStart, CountsFromWhenTheAssertionIsThere) {
    desktop().calls.during(
        "createPowerAssertion(NoDisplaySleepAssertion, 255, Quellbar Keep Awake)",
        [] { desktop().clock.advance(2s); });
    manager.start(60);
    EXPECT_THAT(reports(), ElementsAre(inactive, running(60)));
}

TEST_F(KeepAwakeStart, DuringARunReleasesTheOldAssertionBeforeItTakesANewOne) {
    startAndForget(60);
    manager.start(120);
    EXPECT_THAT(
        calls(),
        ElementsAre("releasePowerAssertion(1)", "Timer::invalidate()",
                    "keepAwakeDidChangeState(false, 0)",
                    "createPowerAssertion(NoDisplaySleepAssertion, 255, Quellbar Keep Awake)",
                    "Timer::repeatingTimer(1000 ms)", "addTimerToMainRunLoop(defaultMode)",
                    "keepAwakeDidChangeState(true, 120)"));
    EXPECT_THAT(desktop().powerAssertions.held(), ElementsAre(Pair(2U, testing::_)));
    EXPECT_EQ(desktop().runLoop.timerCount(), 1U);
}

TEST_F(KeepAwakeStart, DuringARunCountsAnewFromNow) {
    manager.start(60);
    pass(10500ms);
    forget();
    manager.start(5);
    EXPECT_THAT(reports(), ElementsAre(inactive, running(5)));
    forget();
    pass(999ms);
    EXPECT_THAT(reports(), IsEmpty());
    pass(1ms);
    EXPECT_THAT(reports(), ElementsAre(running(4)));
}

TEST_F(KeepAwakeStart, WithoutADurationReadsTheSettingBeforeItTakesTheAssertion) {
    manager.start();
    EXPECT_THAT(
        calls(),
        ElementsAre("keepAwakeDidChangeState(false, 0)", "doubleForKey(keepAwakeDurationSeconds)",
                    "createPowerAssertion(NoDisplaySleepAssertion, 255, Quellbar Keep Awake)",
                    "Timer::repeatingTimer(1000 ms)", "addTimerToMainRunLoop(defaultMode)",
                    "keepAwakeDidChangeState(true, 7200)"));
}

TEST_F(KeepAwakeStart, WithoutADurationLastsTwoHoursUntilTheUserSetsAnother) {
    manager.start();
    EXPECT_EQ(KeepAwakeManager::formatted(manager.remainingSeconds()), "2:00:00");
    Preferences::shared().defaults.setDouble(5400, Preferences::keepAwakeDurationSecondsKey);
    manager.start();
    EXPECT_EQ(KeepAwakeManager::formatted(manager.remainingSeconds()), "1:30:00");
}

TEST_F(KeepAwakeStart, ThatIsRefusedStaysInactiveAndSilent) {
    desktop().powerAssertions.createStatus = platform::kIOReturnError;
    manager.start(60);
    EXPECT_THAT(
        calls(),
        ElementsAre("keepAwakeDidChangeState(false, 0)",
                    "createPowerAssertion(NoDisplaySleepAssertion, 255, Quellbar Keep Awake)"));
    EXPECT_FALSE(manager.isActive());
    EXPECT_EQ(manager.remainingSeconds(), 0);
    EXPECT_EQ(desktop().runLoop.timerCount(), 0U);
}

TEST_F(KeepAwakeStart, IsRefusedByAnyStatusButSuccess) {
    for (const platform::IOReturn status : {1, -1, platform::kIOReturnNotFound}) {
        desktop().powerAssertions.createStatus = status;
        manager.start(60);
        EXPECT_FALSE(manager.isActive()) << status;
    }
}

TEST_F(KeepAwakeStart, ThatIsRefusedDuringARunHasEndedThatRun) {
    startAndForget(60);
    desktop().powerAssertions.createStatus = platform::kIOReturnError;
    manager.start(60);
    EXPECT_THAT(reports(), ElementsAre(inactive));
    EXPECT_FALSE(displayStaysAwake());
    EXPECT_EQ(desktop().runLoop.timerCount(), 0U);
}

TEST_F(KeepAwakeStart, SucceedsOnceTheSystemNoLongerRefuses) {
    desktop().powerAssertions.createStatus = platform::kIOReturnError;
    manager.start(60);
    desktop().powerAssertions.createStatus = platform::kIOReturnSuccess;
    forget();
    manager.start(60);
    EXPECT_THAT(reports(), ElementsAre(inactive, running(60)));
    EXPECT_TRUE(displayStaysAwake());
}

} // namespace
