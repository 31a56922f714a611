#include "hotkey/HotKeyManager.h"
#include "settings/Preferences.h"
#include "unit/windows/WindowTest.h"

namespace {

using platform::modifierFlagCommand;
using simulated::desktop;
using simulated::KeyCombination;
using testing::ElementsAre;
using testing::IsEmpty;

class SettingsShortcut : public SettingsTest {
  protected:
    /// The combinations that are registered.
    static std::vector<KeyCombination> registered() {
        std::vector<KeyCombination> combinations;
        for (const auto& registration : desktop().hotKeys.registrations()) {
            combinations.push_back(registration.combination);
        }
        return combinations;
    }
    static void registerStored() {
        HotKeyManager::shared().registerHotKey(Preferences::shared().minimizeAllShortcut());
    }
};

TEST_F(SettingsShortcut, RecordedIsStoredAndThenRegisteredInPlaceOfTheOld) {
    registerStored();
    open();
    desktop().calls.clear();
    record(12, modifierFlagCommand);
    EXPECT_THAT(registered(), ElementsAre(KeyCombination{12, 0x100}));
    EXPECT_EQ(Preferences::shared().minimizeAllShortcut(), (KeyCombo{12, 0x100}));
    EXPECT_THAT(desktop().calls.of(
                    {"setObject", "boolForKey", "unregisterEventHotKey", "registerEventHotKey"}),
                ElementsAre(testing::StartsWith("setObject(<"), "boolForKey(shortcutsEnabled)",
                            "unregisterEventHotKey(46, 0x900)",
                            "registerEventHotKey(12, 0x100, QLBR, 1)"));
}

TEST_F(SettingsShortcut, RecordedWhileShortcutsAreOffIsStoredAndNotRegistered) {
    store("shortcutsEnabled", false);
    open();
    record(12, modifierFlagCommand);
    EXPECT_THAT(registered(), IsEmpty());
    EXPECT_EQ(Preferences::shared().minimizeAllShortcut(), (KeyCombo{12, 0x100}));
    checkbox("Enable Shortcuts").click();
    EXPECT_THAT(registered(), ElementsAre(KeyCombination{12, 0x100}));
}

TEST_F(SettingsShortcut, RecordedWhereNothingCanBeStoredIsRegisteredAllTheSame) {
    open();
    desktop().userDefaults.isWritable = false;
    record(12, modifierFlagCommand);
    EXPECT_THAT(registered(), ElementsAre(KeyCombination{12, 0x100}));
}

TEST_F(SettingsShortcut, RecordedIsRegisteredItselfAndNotWhatTheStoreHoldsByThen) {
    open();
    desktop().calls.during("boolForKey(shortcutsEnabled)",
                           [] { desktop().userDefaults.stored.erase("minimizeShortcut"); });
    record(12, modifierFlagCommand);
    EXPECT_THAT(registered(), ElementsAre(KeyCombination{12, 0x100}));
}

TEST_F(SettingsShortcut, RecordedThatAnotherProgramHoldsIsStoredAndLeavesNoneRegistered) {
    registerStored();
    open();
    desktop().hotKeys.holdElsewhere({12, 0x100});
    record(12, modifierFlagCommand);
    EXPECT_THAT(registered(), IsEmpty());
    EXPECT_EQ(recorderText().text(), "⌘Q");
    EXPECT_EQ(Preferences::shared().minimizeAllShortcut(), (KeyCombo{12, 0x100}));
    EXPECT_THAT(desktop().log.lines, IsEmpty());
}

TEST_F(SettingsShortcut, RecordedAgainOnceTheOtherProgramLetsGoIsRegistered) {
    open();
    desktop().hotKeys.holdElsewhere({12, 0x100});
    record(12, modifierFlagCommand);
    desktop().hotKeys.releaseElsewhere({12, 0x100});
    record(12, modifierFlagCommand);
    EXPECT_THAT(registered(), ElementsAre(KeyCombination{12, 0x100}));
}

TEST_F(SettingsShortcut, RecordingOutlastsTheClosingOfTheWindow) {
    open();
    recorder().click();
    window().close();
    EXPECT_EQ(recorderText().text(), "Press new shortcut…");
    EXPECT_FALSE(desktop().userDefaults.stored.contains("minimizeShortcut"));
    open();
    window().pressKey({{}, modifierFlagCommand, 12});
    EXPECT_THAT(registered(), ElementsAre(KeyCombination{12, 0x100}));
}

TEST_F(SettingsShortcut, RecordedIsUsedAtOnce) {
    int presses = 0;
    HotKeyManager::shared().onHotKey = [&] { ++presses; };
    open();
    record(12, modifierFlagCommand);
    desktop().hotKeys.press({46, 0x900});
    desktop().hotKeys.press({12, 0x100});
    desktop().mainQueue.turnUntilIdle();
    EXPECT_EQ(presses, 1);
}

} // namespace
