#include "hotkey/HotKeyManager.h"
#include "settings/Preferences.h"
#include "unit/windows/WindowTest.h"

namespace {

using platform::ActivationPolicy;
using platform::ControlState;
using platform::DefaultsValue;
using platform::LoginItemStatus;
using simulated::desktop;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using SettingsSwitches = SettingsTest;

ActivationPolicy policy() {
    return desktop().application.self().activationPolicy;
}

TEST_F(SettingsSwitches, TheDockIconComesAndGoesAtOnce) {
    open();
    checkbox("Enable Dock Icon").click();
    EXPECT_EQ(policy(), ActivationPolicy::regular);
    EXPECT_EQ(stored("enableDockIcon"), DefaultsValue(true));
    checkbox("Enable Dock Icon").click();
    EXPECT_EQ(policy(), ActivationPolicy::accessory);
    EXPECT_EQ(stored("enableDockIcon"), DefaultsValue(false));
}

TEST_F(SettingsSwitches, TheDockIconDoesNotActivateTheProgram) {
    open();
    desktop().calls.clear();
    checkbox("Enable Dock Icon").click();
    EXPECT_THAT(desktop().calls.of({"setBool", "setActivationPolicy", "activateIgnoringOtherApps"}),
                ElementsAre("setBool(true, enableDockIcon)", "setActivationPolicy(regular)"));
}

TEST_F(SettingsSwitches, AutoLaunchRegistersTheLoginItemAndRemovesIt) {
    open();
    checkbox("Auto Launch at Login").click();
    EXPECT_EQ(desktop().loginItem.status, LoginItemStatus::enabled);
    EXPECT_EQ(stored("autoLaunchAtLogin"), DefaultsValue(true));
    checkbox("Auto Launch at Login").click();
    EXPECT_EQ(desktop().loginItem.status, LoginItemStatus::notRegistered);
    EXPECT_EQ(stored("autoLaunchAtLogin"), DefaultsValue(false));
}

TEST_F(SettingsSwitches, AutoLaunchIsStoredBeforeItIsApplied) {
    open();
    desktop().calls.clear();
    checkbox("Auto Launch at Login").click();
    EXPECT_THAT(desktop().calls.of({"setBool", "loginItemStatus", "registerLoginItem"}),
                ElementsAre("setBool(true, autoLaunchAtLogin)", "loginItemStatus()",
                            "registerLoginItem()"));
}

TEST_F(SettingsSwitches, AFailedLoginItemStaysCheckedAndStored) {
    desktop().loginItem.registerError = "busy";
    open();
    checkbox("Auto Launch at Login").click();
    EXPECT_EQ(checkbox("Auto Launch at Login").state, ControlState::on);
    EXPECT_EQ(stored("autoLaunchAtLogin"), DefaultsValue(true));
    EXPECT_THAT(desktop().log.lines, SizeIs(1));
}

TEST_F(SettingsSwitches, ShortcutsOffUnregistersAndOnRegistersWhatIsStoredByThen) {
    HotKeyManager::shared().registerHotKey(Preferences::shared().minimizeAllShortcut());
    open();
    checkbox("Enable Shortcuts").click();
    EXPECT_THAT(desktop().hotKeys.registrations(), IsEmpty());
    EXPECT_EQ(stored("shortcutsEnabled"), DefaultsValue(false));
    Preferences::shared().setMinimizeAllShortcut({12, cmdKey});
    checkbox("Enable Shortcuts").click();
    ASSERT_THAT(desktop().hotKeys.registrations(), SizeIs(1));
    EXPECT_EQ(desktop().hotKeys.registrations().front().combination,
              (simulated::KeyCombination{12, 0x100}));
}

TEST_F(SettingsSwitches, ThatAreStaleWriteTheirOwnNewStateOverTheStore) {
    open();
    store("enableDockIcon", true); // as the menu does it
    EXPECT_EQ(checkbox("Enable Dock Icon").state, ControlState::off);
    checkbox("Enable Dock Icon").click();
    EXPECT_EQ(stored("enableDockIcon"), DefaultsValue(true));
    EXPECT_EQ(checkbox("Enable Dock Icon").state, ControlState::on);
    store("shortcutsEnabled", false);
    checkbox("Enable Shortcuts").click();
    EXPECT_EQ(stored("shortcutsEnabled"), DefaultsValue(false));
}

TEST_F(SettingsSwitches, WhereNothingCanBeStoredAreAppliedAllTheSame) {
    open();
    desktop().userDefaults.isWritable = false;
    checkbox("Enable Dock Icon").click();
    EXPECT_EQ(policy(), ActivationPolicy::regular);
    EXPECT_THAT(desktop().userDefaults.stored, IsEmpty());
}

TEST_F(SettingsSwitches, OneDoesNotTouchTheOthers) {
    open();
    checkbox("Enable Dock Icon").click();
    EXPECT_THAT(desktop().userDefaults.stored, SizeIs(1));
    EXPECT_EQ(checkbox("Auto Launch at Login").state, ControlState::off);
    EXPECT_EQ(checkbox("Enable Shortcuts").state, ControlState::on);
    EXPECT_EQ(desktop().loginItem.status, LoginItemStatus::notRegistered);
}

} // namespace
