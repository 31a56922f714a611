#include "unit/menubar/StatusMenuTest.h"

namespace {

using namespace std::chrono_literals;
using platform::Color;
using platform::Rect;
using platform::RunLoopMode;
using simulated::desktop;
using simulated::FilledArea;
using testing::ElementsAre;
using testing::IsEmpty;

class KeepAwakeRow : public WithStatusMenu {
  protected:
    static void openAndPointAtTheRow() { item().openMenu().pointAt(rowItem()); }
    static std::size_t timersOfTheRow() {
        return desktop().runLoop.timerCount(RunLoopMode::defaultMode);
    }
};

using KeepAwakeRowDeathTest = KeepAwakeRow;

TEST_F(KeepAwakeRow, WhenNewReadsOffInTheLabelColour) {
    EXPECT_EQ(rowText().text(), "Keep Awake: Off");
    EXPECT_EQ(rowText().textColor(), Color::label);
}

TEST_F(KeepAwakeRow, Is260By22PointsWithItsTextInTheMenuFont14PointsFromTheEdges) {
    EXPECT_EQ(row().frame(), (Rect{{0, 0}, {260, 22}}));
    EXPECT_EQ(rowText().font(), platform::Font::menu(0));
    EXPECT_EQ(rowText().place(), (simulated::View::Place{.leading = 14, .trailing = 14}));
}

TEST_F(KeepAwakeRow, ShowsTheTimeThatIsLeftInRed) {
    keepAwake.start(5400);
    EXPECT_EQ(rowText().text(), "Keep Awake: 1:30:00 remaining");
    EXPECT_EQ(rowText().textColor(), Color::systemRed);
}

TEST_F(KeepAwakeRow, ShowsNinetyNineDays) {
    keepAwake.start(99 * 86'400);
    EXPECT_EQ(rowText().text(), "Keep Awake: 2376:00:00 remaining");
}

TEST_F(KeepAwakeRow, ReadsOffAgainWhenTheRunHasEnded) {
    keepAwake.start(1);
    desktop().runLoop.run(1s);
    EXPECT_EQ(rowText().text(), "Keep Awake: Off");
    EXPECT_EQ(rowText().textColor(), Color::label);
}

TEST_F(KeepAwakeRow, OffShowsNoTimeWhateverIsLeft) {
    dynamic_cast<KeepAwakeMenuItemView&>(row().self()).refresh(false, 5400);
    EXPECT_EQ(rowText().text(), "Keep Awake: Off");
}

TEST_F(KeepAwakeRow, HasATimerOfTheDefaultModeWhileTheMenuIsOpenAlone) {
    EXPECT_EQ(timersOfTheRow(), 0U);
    item().openMenu();
    EXPECT_EQ(timersOfTheRow(), 1U);
    EXPECT_EQ(desktop().runLoop.timerCount(), 1U);
    EXPECT_THAT(desktop().calls.of({"Timer::repeatingTimer"}),
                ElementsAre("Timer::repeatingTimer(1000 ms)"));
    menu().dismiss();
    EXPECT_EQ(timersOfTheRow(), 0U);
}

TEST_F(KeepAwakeRow, HasOneNewTimerEachTimeTheMenuOpens) {
    for (int openings = 1; openings <= 3; ++openings) {
        desktop().calls.clear();
        item().openMenu();
        EXPECT_EQ(timersOfTheRow(), 1U);
        menu().dismiss();
        EXPECT_THAT(desktop().calls.of({"Timer::repeatingTimer", "Timer::invalidate"}),
                    ElementsAre("Timer::repeatingTimer(1000 ms)", "Timer::invalidate()"));
    }
}

TEST_F(KeepAwakeRow, IsNotRefreshedByTheOpeningItself) {
    keepAwake.start(60);
    keepAwake.delegate.reset();
    desktop().runLoop.run(500ms);
    item().openMenu();
    EXPECT_EQ(rowText().text(), "Keep Awake: 1:00 remaining");
}

TEST_F(KeepAwakeRow, StandsStillInAnOpenMenuWhereTimersKnowModes) {
    keepAwake.start(60);
    item().openMenu();
    desktop().runLoop.run(5s);
    EXPECT_EQ(rowText().text(), "Keep Awake: 1:00 remaining");
    menu().dismiss();
    desktop().runLoop.run(0s);
    EXPECT_EQ(rowText().text(), "Keep Awake: 0:55 remaining");
}

/// Where timers know no modes, so that those of the row and of the manager go on.
class KeepAwakeRowThatCounts : public KeepAwakeRow {
  protected:
    KeepAwakeRowThatCounts() { desktop().runLoop.timersKnowModes = false; }
};

TEST_F(KeepAwakeRowThatCounts, ChangesEverySecondWhileTheMenuIsOpen) {
    keepAwake.start(60);
    keepAwake.delegate.reset(); // so that nobody but the row's own timer refreshes it
    item().openMenu();
    for (const auto* const left : {"0:59", "0:58", "0:57"}) {
        desktop().runLoop.run(1s);
        EXPECT_EQ(rowText().text(), "Keep Awake: " + std::string(left) + " remaining");
        EXPECT_EQ(rowText().textColor(), Color::systemRed);
    }
}

TEST_F(KeepAwakeRowThatCounts, TicksFirstOneSecondAfterTheMenuOpened) {
    keepAwake.start(60);
    keepAwake.delegate.reset();
    desktop().runLoop.run(500ms);
    item().openMenu();
    desktop().runLoop.run(999ms);
    EXPECT_EQ(rowText().text(), "Keep Awake: 1:00 remaining");
    desktop().runLoop.run(1ms);
    EXPECT_EQ(rowText().text(), "Keep Awake: 0:58 remaining");
}

TEST_F(KeepAwakeRowThatCounts, ShowsZeroBetweenTheEndAndTheManagersNextTick) {
    keepAwake.start(60);
    desktop().runLoop.run(400ms);
    item().openMenu();
    desktop().runLoop.run(700ms);
    desktop().clock.sleep(1h);
    desktop().runLoop.run(300ms); // the row's tick
    EXPECT_EQ(rowText().text(), "Keep Awake: 0:00 remaining");
    EXPECT_EQ(rowText().textColor(), Color::systemRed);
    desktop().runLoop.run(600ms); // the manager's
    EXPECT_EQ(rowText().text(), "Keep Awake: Off");
    EXPECT_EQ(rowText().textColor(), Color::label);
}

TEST_F(KeepAwakeRowThatCounts, IsNotKeptAliveByItsTimer) {
    auto lone = std::make_shared<KeepAwakeMenuItemView>(Rect{{0, 0}, {260, 22}});
    platform::Window window({300, 100}, "Window");
    simulated::stateOf(*lone).moveToWindow(&window);
    const std::weak_ptr<KeepAwakeMenuItemView> watched = lone;
    lone.reset();
    EXPECT_TRUE(watched.expired());
    desktop().runLoop.run(2s); // the timer finds nobody
}

TEST_F(KeepAwakeRow, IsHighlightedWhileThePointerIsOverIt) {
    openAndPointAtTheRow();
    EXPECT_EQ(rowText().textColor(), Color::white);
    EXPECT_THAT(row().display(), ElementsAre(FilledArea{
                                     {{5, 0}, {250, 22}}, 4, 4, Color::selectedContentBackground}));
}

TEST_F(KeepAwakeRow, LosesItsHighlightWhenThePointerLeaves) {
    openAndPointAtTheRow();
    menu().pointElsewhere();
    EXPECT_EQ(rowText().textColor(), Color::label);
    EXPECT_THAT(row().display(), IsEmpty());
}

TEST_F(KeepAwakeRow, IsRedAgainWhenThePointerLeavesDuringARun) {
    keepAwake.start(60);
    openAndPointAtTheRow();
    menu().pointAt(*menu().items().at(0));
    EXPECT_EQ(rowText().textColor(), Color::systemRed);
}

TEST_F(KeepAwakeRow, IsDrawnAnewWhenThePointerComesAndGoes) {
    item().openMenu();
    row().display();
    menu().pointAt(rowItem());
    EXPECT_TRUE(row().needsDisplay());
    row().display();
    menu().pointElsewhere();
    EXPECT_TRUE(row().needsDisplay());
}

TEST_F(KeepAwakeRow, StaysWhiteUnderThePointerWhileItsTextChanges) {
    openAndPointAtTheRow();
    keepAwake.start(60);
    EXPECT_EQ(rowText().text(), "Keep Awake: 1:00 remaining");
    EXPECT_EQ(rowText().textColor(), Color::white);
    keepAwake.stop();
    EXPECT_EQ(rowText().text(), "Keep Awake: Off");
    EXPECT_EQ(rowText().textColor(), Color::white);
    menu().pointElsewhere();
    EXPECT_EQ(rowText().textColor(), Color::label);
}

TEST_F(KeepAwakeRow, TracksThePointerOverAllOfItAndInOneArea) {
    EXPECT_THAT(row().trackingAreas(), IsEmpty());
    for (int openings = 1; openings <= 3; ++openings) {
        item().openMenu().dismiss();
        EXPECT_THAT(row().trackingAreas(), ElementsAre(Rect{{0, 0}, {260, 22}}));
    }
    row().self().setFrame({{0, 0}, {300, 22}});
    item().openMenu();
    EXPECT_THAT(row().trackingAreas(), ElementsAre(Rect{{0, 0}, {300, 22}}));
}

TEST_F(KeepAwakeRowDeathTest, FromAnArchiveIsFatal) {
    EXPECT_DEATH(KeepAwakeMenuItemView(platform::Coder()),
                 "Fatal error: init\\(coder:\\) has not been implemented");
}

} // namespace
