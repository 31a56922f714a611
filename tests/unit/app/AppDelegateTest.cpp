#include "app/AppDelegate.h"

#include "hotkey/HotKeyManager.h"
#include "platform/simulated/Desktop.h"
#include "unit/support/Installation.h"

#include <gmock/gmock.h>

namespace {

using platform::ActivationPolicy;
using simulated::desktop;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

constexpr simulated::KeyCombination optionCommandM{46, 0x900};

void store(const std::string& key, platform::DefaultsValue value) {
    desktop().userDefaults.stored[key] = std::move(value);
}

/// The program with its delegate set, about to launch.
class Launch : public testing::Test {
  protected:
    void SetUp() override {
        installQuellbar();
        platform::Application::shared().setDelegate(&delegate_);
        desktop().calls.clear();
    }

    static void launch() { desktop().application.launch(); }

    /// The calls that the steps consist of, without what makes up the menu.
    static std::vector<std::string> stepsTaken() {
        return desktop().calls.of({"setActivationPolicy", "isProcessTrustedWithOptions",
                                   "inSystemStatusBar", "StatusItem::setMenu",
                                   "installHotKeyPressedHandler", "registerEventHotKey",
                                   "Timer::repeatingTimer", "addTimerToMainRunLoop", "Logger::log",
                                   "loginItemStatus", "registerLoginItem"});
    }
    static void press() {
        desktop().hotKeys.press(optionCommandM);
        desktop().mainQueue.turnUntilIdle();
    }

    AppDelegate delegate_;
};

TEST_F(Launch, TakesItsStepsInOrder) {
    launch();
    EXPECT_THAT(stepsTaken(),
                ElementsAre("setActivationPolicy(accessory)", "isProcessTrustedWithOptions(prompt)",
                            "inSystemStatusBar(-1)", "StatusItem::setMenu()",
                            "installHotKeyPressedHandler()",
                            "registerEventHotKey(46, 0x900, QLBR, 1)",
                            "Timer::repeatingTimer(80 ms)", "addTimerToMainRunLoop(commonModes)",
                            StartsWith("Logger::log(")));
}

TEST_F(Launch, ReadsTheSettingsOfEachStepAndOfTheMenu) {
    launch();
    EXPECT_THAT(desktop().calls.of({"boolForKey", "dataForKey", "stringArrayForKey"}),
                ElementsAre("boolForKey(enableDockIcon)", "dataForKey(minimizeShortcut)",
                            "stringArrayForKey(hotCorners)", "stringArrayForKey(hotCorners)",
                            "stringArrayForKey(hotCorners)", "stringArrayForKey(hotCorners)",
                            "boolForKey(autoLaunchAtLogin)", "boolForKey(enableDockIcon)",
                            "boolForKey(shortcutsEnabled)", "boolForKey(shortcutsEnabled)",
                            "dataForKey(minimizeShortcut)", "stringArrayForKey(hotCorners)",
                            "boolForKey(autoLaunchAtLogin)"));
}

TEST_F(Launch, PutsOneStatusItemWithTheIconIntoTheStatusBar) {
    launch();
    const auto& image = desktop().statusBar.item().button().image;
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(simulated::stateOf(*image).file.filename(), "menubar_icon.png");
}

TEST_F(Launch, ShowsNoDockIconUnlessItIsEnabled) {
    launch();
    EXPECT_EQ(desktop().application.self().activationPolicy, ActivationPolicy::accessory);
}

TEST_F(Launch, ShowsTheDockIconWhenItIsEnabled) {
    store("enableDockIcon", true);
    launch();
    EXPECT_THAT(desktop().calls.of({"setActivationPolicy"}),
                ElementsAre("setActivationPolicy(regular)"));
    EXPECT_EQ(desktop().application.self().activationPolicy, ActivationPolicy::regular);
}

TEST_F(Launch, GoesOnWhenThePolicyIsRefused) {
    desktop().application.refusesPolicy = true;
    launch();
    EXPECT_EQ(desktop().hotKeys.registrations().size(), 1U);
}

TEST_F(Launch, ShowsTheSystemsTrustPromptOnceAndGoesOn) {
    desktop().accessibility.isTrusted = false;
    launch();
    EXPECT_EQ(desktop().accessibility.promptsShown(), 1);
    EXPECT_EQ(desktop().statusBar.items().size(), 1U);
    EXPECT_EQ(desktop().hotKeys.registrations().size(), 1U);
}

TEST_F(Launch, MinimizesNothing) {
    const auto& inbox = desktop().workspace.launch("Mail").openWindow("Inbox");
    launch();
    desktop().mainQueue.turnUntilIdle();
    EXPECT_FALSE(inbox.isMinimized);
}

TEST_F(Launch, MakesTheShortcutMinimizeEveryWindow) {
    const auto& inbox = desktop().workspace.launch("Mail").openWindow("Inbox");
    launch();
    press();
    EXPECT_TRUE(inbox.isMinimized);
}

TEST_F(Launch, WithoutTrustThePressAsksForItAgain) {
    desktop().accessibility.isTrusted = false;
    launch();
    press();
    EXPECT_EQ(desktop().accessibility.promptsShown(), 2);
}

TEST_F(Launch, RegistersTheStoredShortcut) {
    const std::string_view json = R"({"keyCode":12,"modifiers":256})";
    store("minimizeShortcut", platform::Data(json.begin(), json.end()));
    launch();
    EXPECT_THAT(desktop().calls.of({"registerEventHotKey"}),
                ElementsAre("registerEventHotKey(12, 0x100, QLBR, 1)"));
}

TEST_F(Launch, WithShortcutsOffRegistersNothingAndReadsTheShortcutForTheMenuAlone) {
    store("shortcutsEnabled", false);
    launch();
    EXPECT_THAT(desktop().calls.of({"registerEventHotKey"}), IsEmpty());
    EXPECT_THAT(desktop().calls.of({"dataForKey"}), ElementsAre("dataForKey(minimizeShortcut)"));
    EXPECT_THAT(desktop().hotKeys.registrations(), IsEmpty());
}

TEST_F(Launch, WithShortcutsOffSetsTheActionAllTheSame) {
    const auto& inbox = desktop().workspace.launch("Mail").openWindow("Inbox");
    store("shortcutsEnabled", false);
    launch();
    press();
    EXPECT_FALSE(inbox.isMinimized);
    ASSERT_TRUE(HotKeyManager::shared().onHotKey);
    HotKeyManager::shared().onHotKey();
    EXPECT_TRUE(inbox.isMinimized);
}

TEST_F(Launch, TheActionReadsNoSetting) {
    launch();
    desktop().calls.clear();
    HotKeyManager::shared().onHotKey();
    EXPECT_THAT(desktop().calls.all(), ElementsAre("isProcessTrusted()", "runningApplications()",
                                                   "activationPolicy(Quellbar)"));
}

TEST_F(Launch, IsCompleteWithoutAHotKeyWhereAnotherClientHoldsTheCombination) {
    desktop().hotKeys.holdElsewhere(optionCommandM);
    launch();
    EXPECT_EQ(desktop().calls.all().back(), "boolForKey(autoLaunchAtLogin)");
    EXPECT_THAT(desktop().hotKeys.registrations(), IsEmpty());
}

TEST_F(Launch, ReadsEachSettingAtItsStep) {
    desktop().calls.during("setActivationPolicy(accessory)",
                           [] { store("shortcutsEnabled", false); });
    launch();
    EXPECT_THAT(desktop().hotKeys.registrations(), IsEmpty());
}

TEST_F(Launch, ReadsTheShortcutAfterTheSwitch) {
    desktop().calls.during("installHotKeyPressedHandler()", [] {
        desktop().calls.during("boolForKey(shortcutsEnabled)", [] {
            const std::string_view json = R"({"keyCode":12,"modifiers":256})";
            store("minimizeShortcut", platform::Data(json.begin(), json.end()));
        });
    });
    launch();
    EXPECT_THAT(desktop().calls.all(), Contains("registerEventHotKey(12, 0x100, QLBR, 1)"));
}

TEST_F(Launch, StoresNothing) {
    launch();
    EXPECT_THAT(desktop().userDefaults.stored, IsEmpty());
}

TEST_F(Launch, ChangedSettingsAreNotAppliedAfterwards) {
    launch();
    desktop().calls.clear();
    platform::UserDefaults::standard().setBool(true, "enableDockIcon");
    platform::UserDefaults::standard().setBool(false, "shortcutsEnabled");
    desktop().mainQueue.turnUntilIdle();
    EXPECT_EQ(desktop().application.self().activationPolicy, ActivationPolicy::accessory);
    EXPECT_EQ(desktop().hotKeys.registrations().size(), 1U);
}

TEST_F(Launch, ASecondTimeByTheUserShowsTheSettings) {
    launch();
    EXPECT_THAT(desktop().windows.all(), IsEmpty());
    desktop().application.reopen();
    EXPECT_TRUE(desktop().windows.titled("Quellbar Settings").isKey());
    EXPECT_TRUE(desktop().application.isActive());
}

TEST(LaunchDeathTest, WithoutAnApplicationObjectIsFatal) {
    EXPECT_DEATH(AppDelegate().applicationDidFinishLaunching(),
                 "Fatal error: the application object does not exist");
}

using Termination = Launch;

TEST_F(Termination, UnregistersTheHotKeyFirst) {
    launch();
    desktop().calls.clear();
    desktop().application.quit();
    EXPECT_EQ(desktop().calls.all().front(), "unregisterEventHotKey(46, 0x900)");
    EXPECT_THAT(desktop().hotKeys.registrations(), IsEmpty());
}

TEST_F(Termination, LeavesTheActionAsItIs) {
    launch();
    desktop().application.quit();
    EXPECT_TRUE(HotKeyManager::shared().onHotKey);
}

TEST_F(Termination, WithoutAHotKeyUnregistersNothing) {
    store("shortcutsEnabled", false);
    launch();
    desktop().calls.clear();
    desktop().application.quit();
    EXPECT_THAT(desktop().calls.of({"unregisterEventHotKey"}), IsEmpty());
}

TEST_F(Termination, AfterARefusedCombinationUnregistersNothing) {
    desktop().hotKeys.holdElsewhere(optionCommandM);
    launch();
    desktop().application.quit();
    EXPECT_THAT(desktop().calls.all(), Not(Contains(StartsWith("unregisterEventHotKey"))));
}

TEST_F(Termination, OfAPressThatStillWaitsRunsNothing) {
    const auto& inbox = desktop().workspace.launch("Mail").openWindow("Inbox");
    launch();
    desktop().hotKeys.press(optionCommandM);
    desktop().application.quit();
    desktop().mainQueue.turnUntilIdle();
    EXPECT_FALSE(inbox.isMinimized);
}

} // namespace
