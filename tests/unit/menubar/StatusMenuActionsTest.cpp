#include "corners/CornerHoverMonitor.h"
#include "settings/Preferences.h"
#include "unit/menubar/StatusMenuTest.h"

namespace {

using namespace std::chrono_literals;
using simulated::desktop;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

using StatusMenuActions = WithStatusMenu;

platform::StringArray storedCorners() {
    return std::get<platform::StringArray>(desktop().userDefaults.stored.at("hotCorners"));
}

TEST_F(StatusMenuActions, MinimizeAllMinimizesEveryWindowAfterTheMenuHasClosed) {
    const auto& inbox = desktop().workspace.launch("Mail").openWindow("Inbox");
    desktop().calls.during("setAttributeValue(Inbox, AXMinimized, true)",
                           [] { EXPECT_FALSE(menu().isOpen()); });
    item().openMenu().click(*menu().items().at(0));
    EXPECT_TRUE(inbox.isMinimized);
}

TEST_F(StatusMenuActions, TurnOnStartsARunOfTheDefaultDuration) {
    choose({"Keep Awake Controls", "Turn On"});
    EXPECT_EQ(keepAwake.remainingSeconds(), 7200);
    EXPECT_TRUE(desktop().powerAssertions.displayStaysAwake());
}

TEST_F(StatusMenuActions, TurnOffEndsTheRun) {
    keepAwake.start(60);
    choose({"Keep Awake Controls", "Turn Off"});
    EXPECT_FALSE(keepAwake.isActive());
    EXPECT_FALSE(desktop().powerAssertions.displayStaysAwake());
}

TEST_F(StatusMenuActions, TheToggleGoesByTheManagerAndNotByItsTitle) {
    keepAwake.delegate.reset();
    keepAwake.start(60);
    choose({"Keep Awake Controls", "Turn On"});
    EXPECT_FALSE(keepAwake.isActive());
}

TEST_F(StatusMenuActions, Plus30FromIdleStartsTheDefaultDurationAnd30Minutes) {
    choose({"Keep Awake Controls", "+ 30 min"});
    EXPECT_EQ(keepAwake.remainingSeconds(), 7200 + 1800);
}

TEST_F(StatusMenuActions, Plus30DuringARunLengthensItWithoutANewAssertion) {
    keepAwake.start(600);
    choose({"Keep Awake Controls", "+ 30 min"});
    EXPECT_EQ(keepAwake.remainingSeconds(), 600 + 1800);
    EXPECT_THAT(desktop().calls.of({"createPowerAssertion"}), ElementsAre(testing::_));
}

TEST_F(StatusMenuActions, Plus30WhereNoAssertionCanBeHadStaysOff) {
    desktop().powerAssertions.createStatus = platform::kIOReturnError;
    choose({"Keep Awake Controls", "+ 30 min"});
    EXPECT_FALSE(keepAwake.isActive());
}

TEST_F(StatusMenuActions, Minus30FromIdleStartsNothing) {
    choose({"Keep Awake Controls", "− 30 min"});
    EXPECT_FALSE(keepAwake.isActive());
    EXPECT_THAT(desktop().calls.of({"createPowerAssertion", "setStringValue"}), IsEmpty());
}

TEST_F(StatusMenuActions, Minus30DuringARunShortensIt) {
    keepAwake.start(2700);
    choose({"Keep Awake Controls", "− 30 min"});
    EXPECT_EQ(keepAwake.remainingSeconds(), 900);
}

TEST_F(StatusMenuActions, Minus30WithTenMinutesLeftEndsTheRun) {
    keepAwake.start(600);
    choose({"Keep Awake Controls", "− 30 min"});
    EXPECT_FALSE(keepAwake.isActive());
}

TEST_F(StatusMenuActions, AClickOnACheckedCornerRemovesItAndAnotherRestoresIt) {
    store("hotCorners", platform::StringArray{"topLeft", "bottomRight"});
    create();
    choose({"Desktop Reveal Corners", "Bottom Right"});
    EXPECT_THAT(storedCorners(), ElementsAre("topLeft"));
    EXPECT_FALSE(isChecked("Desktop Reveal Corners", "Bottom Right"));
    choose({"Desktop Reveal Corners", "Bottom Right"});
    EXPECT_THAT(storedCorners(), UnorderedElementsAre("topLeft", "bottomRight"));
    EXPECT_TRUE(isChecked("Desktop Reveal Corners", "Bottom Right"));
}

TEST_F(StatusMenuActions, TheLastCornerLeavesTheEmptySet) {
    choose({"Desktop Reveal Corners", "Bottom Right"});
    EXPECT_THAT(storedCorners(), IsEmpty());
}

TEST_F(StatusMenuActions, ACornerItemFlipsItsOwnMarkWhateverIsStored) {
    store("hotCorners", platform::StringArray{"topLeft"});
    choose({"Desktop Reveal Corners", "Top Left"}); // not checked when the menu was built
    EXPECT_TRUE(isChecked("Desktop Reveal Corners", "Top Left"));
    EXPECT_THAT(storedCorners(), ElementsAre("topLeft"));
}

TEST_F(StatusMenuActions, EachCornerItemStoresItsOwnCorner) {
    choose({"Desktop Reveal Corners", "Bottom Right"});
    for (const auto& [title, corner] :
         std::map<std::string, std::string>{{"Top Left", "topLeft"},
                                            {"Top Right", "topRight"},
                                            {"Bottom Left", "bottomLeft"},
                                            {"Bottom Right", "bottomRight"}}) {
        choose({"Desktop Reveal Corners", title});
        EXPECT_THAT(storedCorners(), ElementsAre(corner));
        choose({"Desktop Reveal Corners", title});
    }
}

TEST_F(StatusMenuActions, ACornerThatIsEnabledUnderThePointerFiresWithoutAnyMoveOfIt) {
    const auto& inbox = desktop().workspace.launch("Mail").openWindow("Inbox");
    CornerHoverMonitor::shared().start();
    desktop().screens.pointer = {0, 899};
    desktop().runLoop.run(1s);
    EXPECT_FALSE(inbox.isMinimized);
    choose({"Desktop Reveal Corners", "Top Left"});
    desktop().runLoop.run(320ms);
    EXPECT_FALSE(inbox.isMinimized);
    desktop().runLoop.run(80ms);
    EXPECT_TRUE(inbox.isMinimized);
}

TEST_F(StatusMenuActions, SettingsComesForwardAndThenActivatesTheProgram) {
    choose({"Settings…"});
    EXPECT_TRUE(desktop().windows.titled("Quellbar Settings").isKey());
    EXPECT_THAT(
        desktop().calls.of({"makeKeyAndOrderFront", "activateIgnoringOtherApps"}),
        ElementsAre("makeKeyAndOrderFront(Quellbar Settings)", "activateIgnoringOtherApps()"));
}

TEST_F(StatusMenuActions, AboutComesForwardAndThenActivatesTheProgram) {
    choose({"About & Help"});
    EXPECT_TRUE(desktop().windows.titled("About Quellbar").isKey());
    EXPECT_THAT(desktop().calls.of({"makeKeyAndOrderFront", "activateIgnoringOtherApps"}),
                ElementsAre("makeKeyAndOrderFront(About Quellbar)", "activateIgnoringOtherApps()"));
}

TEST_F(StatusMenuActions, TheWindowsAreMadeAtTheirFirstUse) {
    item().openMenu().dismiss();
    EXPECT_THAT(desktop().windows.all(), IsEmpty());
}

TEST_F(StatusMenuActions, CommandCommaOpensTheSettings) {
    item().openMenu().pressKeyEquivalent(",");
    EXPECT_TRUE(desktop().windows.titled("Quellbar Settings").isVisible());
    EXPECT_FALSE(menu().isOpen());
}

TEST_F(StatusMenuActions, QuitEndsTheProgramInTheNormalWay) {
    choose({"Quit Quellbar"});
    EXPECT_THAT(desktop().calls.all(), Contains("terminate()"));
    EXPECT_TRUE(desktop().application.hasTerminated());
}

TEST_F(StatusMenuActions, CommandQQuits) {
    item().openMenu().pressKeyEquivalent("q");
    EXPECT_TRUE(desktop().application.hasTerminated());
}

TEST_F(StatusMenuActions, OnceTheControllerIsGoneNothingIsDone) {
    const auto kept = menu().items().at(3)->submenu()->items().at(0);
    const auto item = kept->self().shared_from_this();
    controller.reset();
    kept->runAction();
    EXPECT_FALSE(keepAwake.isActive());
}

} // namespace
