#include "settings/Preferences.h"
#include "unit/corners/CornerTest.h"

namespace {

using namespace std::chrono_literals;
using simulated::desktop;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Message = simulated::Log::Message;

using CornerPoll = CornerTest;

TEST_F(CornerPoll, StartsInOrder) {
    monitor.start();
    EXPECT_THAT(
        desktop().calls.all(),
        ElementsAre("Timer::repeatingTimer(80 ms)", "addTimerToMainRunLoop(commonModes)",
                    "stringArrayForKey(hotCorners)",
                    "Logger::log(CornerHoverMonitor started, enabled corners: [bottomRight])"));
}

TEST_F(CornerPoll, GoesOnInTheCommonModesAlone) {
    monitor.start();
    EXPECT_EQ(desktop().runLoop.timerCount(), 1U);
    EXPECT_EQ(desktop().runLoop.timerCount(platform::RunLoopMode::commonModes), 1U);
}

TEST_F(CornerPoll, ItsStartIsLoggedUnderTheProgramsNameWithTheCornersThatAreEnabled) {
    monitor.start();
    EXPECT_THAT(desktop().log.messages,
                ElementsAre(Message{"io.github.quellbar.Quellbar", "CornerHover",
                                    "CornerHoverMonitor started, enabled corners: [bottomRight]"}));
    EXPECT_THAT(desktop().log.lines, IsEmpty());
}

TEST_F(CornerPoll, ItsStartListsNoCornerOneOrAll) {
    enable({});
    monitor.start();
    enable({"topRight"});
    monitor.start();
    enable({"bottomRight", "topLeft", "bottomLeft", "topRight"});
    monitor.start();
    EXPECT_THAT(messages(), ElementsAre("CornerHoverMonitor started, enabled corners: []",
                                        "CornerHoverMonitor started, enabled corners: [topRight]",
                                        "CornerHoverMonitor started, enabled corners: "
                                        "[topLeft, topRight, bottomLeft, bottomRight]"));
}

TEST_F(CornerPoll, StartedTwiceHasOneTimer) {
    startAndForget();
    monitor.start();
    EXPECT_THAT(desktop().calls.of({"Timer::invalidate", "Timer::repeatingTimer"}),
                ElementsAre("Timer::invalidate()", "Timer::repeatingTimer(80 ms)"));
    EXPECT_EQ(desktop().runLoop.timerCount(), 1U);
}

TEST_F(CornerPoll, StopsWithItsTimer) {
    startAndForget();
    monitor.stop();
    EXPECT_THAT(desktop().calls.all(), ElementsAre("Timer::invalidate()"));
    EXPECT_EQ(desktop().runLoop.timerCount(), 0U);
    point(bottomRight);
    forget();
    pass(10s);
    EXPECT_THAT(desktop().calls.all(), IsEmpty());
}

TEST_F(CornerPoll, StoppedTwiceOrBeforeItsStartDoesNothing) {
    monitor.stop();
    EXPECT_THAT(desktop().calls.all(), IsEmpty());
    monitor.start();
    monitor.stop();
    forget();
    monitor.stop();
    EXPECT_THAT(desktop().calls.all(), IsEmpty());
}

TEST_F(CornerPoll, GoesOnAfterAStopAndAnotherStart) {
    monitor.start();
    monitor.stop();
    startAndForget();
    point(bottomRight);
    pass(1s);
    EXPECT_EQ(reveals(), 1U);
}

TEST_F(CornerPoll, HappensOnceEvery80Milliseconds) {
    startAndForget();
    pass(79ms);
    EXPECT_THAT(desktop().calls.all(), IsEmpty());
    pass(1ms);
    EXPECT_THAT(desktop().calls.of({"mouseLocation"}), SizeIs(1));
    pass(2s - 80ms);
    EXPECT_THAT(desktop().calls.of({"mouseLocation"}), SizeIs(25));
}

TEST_F(CornerPoll, ReadsTheSettingThePointerAndTheScreensOnceEach) {
    startAndForget();
    poll();
    EXPECT_THAT(desktop().calls.all(),
                ElementsAre("stringArrayForKey(hotCorners)", "mouseLocation()", "screens()"));
}

TEST_F(CornerPoll, InACornerLooksNoFurtherThanAnywhereElse) {
    startAndForget();
    point(bottomRight);
    poll(5);
    forget();
    poll();
    EXPECT_THAT(desktop().calls.all(),
                ElementsAre("stringArrayForKey(hotCorners)", "mouseLocation()", "screens()"));
}

TEST_F(CornerPoll, WithoutAnEnabledCornerReadsTheSettingAlone) {
    enable({});
    startAndForget();
    point(bottomRight);
    pass(10s);
    EXPECT_THAT(desktop().calls.all(), SizeIs(125));
    EXPECT_THAT(desktop().calls.all(), Each("stringArrayForKey(hotCorners)"));
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(CornerPoll, WithASettingOfAnotherTypeHasNoCorner) {
    desktop().userDefaults.stored["hotCorners"] = std::string("bottomRight");
    startAndForget();
    point(bottomRight);
    pass(1s);
    EXPECT_THAT(desktop().calls.all(), Each("stringArrayForKey(hotCorners)"));
}

TEST_F(CornerPoll, PassesOverNamesThatNameNoCorner) {
    enable({"middle", "topLeft", "bottomright"});
    startAndForget();
    point(bottomRight);
    poll();
    EXPECT_THAT(messages(), IsEmpty());
    point(topLeft);
    poll();
    EXPECT_THAT(messages(), ElementsAre("Cursor entered enabled corner topLeft"));
}

TEST_F(CornerPoll, WithoutASettingThatCanBeReadHasTheFactoryCorner) {
    enable({"topLeft"});
    desktop().userDefaults.isReadable = false;
    startAndForget();
    point(bottomRight);
    poll();
    EXPECT_THAT(messages(), ElementsAre("Cursor entered enabled corner bottomRight"));
}

TEST_F(CornerPoll, SeesWhatThisProgramStoresAtOnce) {
    startAndForget();
    Preferences::shared().setHotCorners({ScreenCorner::topRight});
    point(topRight);
    poll();
    EXPECT_THAT(messages(), ElementsAre("Cursor entered enabled corner topRight"));
}

} // namespace
