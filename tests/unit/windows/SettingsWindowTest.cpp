#include "windows/SettingsWindowController.h"

#include "unit/windows/WindowTest.h"

namespace {

using simulated::desktop;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using SettingsWindow = SettingsTest;

TEST_F(SettingsWindow, FirstOpenedShowsTheFactorySettings) {
    open();
    EXPECT_THAT(
        contentsOf(window()),
        ElementsAre("label \"Global Shortcut\" at (24, 320) 160x20, boldSystem 13",
                    "label \"Minimize All Windows:\" at (24, 292) 170x20",
                    "view at (200, 290) 120x24",
                    "label \"Keep Awake\" at (24, 248) 160x20, boldSystem 13",
                    "label \"Default duration (minutes):\" at (24, 220) 190x20",
                    "field \"120\" at (220, 218) 60x24",
                    "stepper 120 at (284, 218) 19x24, 30 to 1440 by 30",
                    "label \"(adjust live in ±30 min steps from the menu)\" at (24, 196) 340x20",
                    "label \"General\" at (24, 160) 160x20, boldSystem 13",
                    "checkbox \"Auto Launch at Login\" at (24, 130) 300x24, off",
                    "checkbox \"Enable Dock Icon\" at (24, 100) 300x24, off",
                    "checkbox \"Enable Shortcuts\" at (24, 70) 300x24, on"));
    EXPECT_EQ(recorderText().text(), "⌥⌘M");
}

TEST_F(SettingsWindow, FirstOpenedShowsWhatIsStored) {
    const std::string_view json = R"({"keyCode":12,"modifiers":256})";
    store("minimizeShortcut", platform::Data(json.begin(), json.end()));
    store("keepAwakeDurationSeconds", 5430.0);
    store("autoLaunchAtLogin", true);
    store("enableDockIcon", true);
    store("shortcutsEnabled", false);
    open();
    EXPECT_EQ(recorderText().text(), "⌘Q");
    EXPECT_EQ(window().editableField().text(), "90");
    EXPECT_EQ(window().stepper().value(), 90);
    EXPECT_EQ(checkbox("Auto Launch at Login").state, platform::ControlState::on);
    EXPECT_EQ(checkbox("Enable Dock Icon").state, platform::ControlState::on);
    EXPECT_EQ(checkbox("Enable Shortcuts").state, platform::ControlState::off);
}

TEST_F(SettingsWindow, Is420By360PointsInTheMiddleOfTheScreen) {
    open();
    EXPECT_EQ(window().contentSize(), (platform::Size{420, 360}));
    EXPECT_EQ(window().origin(), (platform::Point{510, 270}));
}

TEST_F(SettingsWindow, IsNotShownBeforeItIsAskedTo) {
    SettingsWindowController::shared();
    EXPECT_FALSE(window().isOpen());
}

TEST_F(SettingsWindow, ReopenedIsTheSameOneAtItsPlaceWithItsValues) {
    open();
    const auto* const first = &window();
    window().moveTo({12, 34});
    window().editableField().type("45");
    checkbox("Enable Dock Icon").click();
    window().close();
    EXPECT_FALSE(window().isVisible());
    desktop().calls.clear();
    open();
    EXPECT_EQ(&window(), first);
    EXPECT_TRUE(window().isKey());
    EXPECT_EQ(window().origin(), (platform::Point{12, 34}));
    EXPECT_EQ(window().editableField().text(), "45");
    EXPECT_EQ(checkbox("Enable Dock Icon").state, platform::ControlState::on);
    EXPECT_THAT(desktop().calls.all(), ElementsAre("makeKeyAndOrderFront(Quellbar Settings)",
                                                   "activateIgnoringOtherApps()"));
}

TEST_F(SettingsWindow, IsOneHoweverOftenItIsOpened) {
    open();
    open();
    EXPECT_THAT(desktop().windows.all(), SizeIs(1));
    EXPECT_THAT(desktop().application.self().windows(), SizeIs(1));
}

TEST_F(SettingsWindow, ReopenedDoesNotShowWhatWasStoredMeanwhile) {
    open();
    window().close();
    store("shortcutsEnabled", false);
    store("keepAwakeDurationSeconds", 60.0);
    open();
    EXPECT_EQ(checkbox("Enable Shortcuts").state, platform::ControlState::on);
    EXPECT_EQ(window().editableField().text(), "120");
}

TEST_F(SettingsWindow, WithoutAContentViewStaysEmpty) {
    desktop().windows.haveContentView = false;
    open();
    EXPECT_TRUE(window().isVisible());
    EXPECT_THAT(window().contents(), IsEmpty());
}

TEST_F(SettingsWindow, StoresNothingByBeingOpened) {
    open();
    EXPECT_THAT(desktop().userDefaults.stored, IsEmpty());
}

} // namespace
