#include "hotkey/HotKeyManager.h"
#include "settings/Preferences.h"
#include "unit/menubar/StatusMenuTest.h"

namespace {

using platform::ActivationPolicy;
using platform::DefaultsValue;
using platform::LoginItemStatus;
using simulated::desktop;
using testing::ElementsAre;
using testing::IsEmpty;

using StatusMenuSwitches = WithStatusMenu;

ActivationPolicy policy() {
    return desktop().application.self().activationPolicy;
}

TEST_F(StatusMenuSwitches, TurnedOnAreCheckedThenStoredThenApplied) {
    choose({"Preferences", "Enable Dock Icon"});
    EXPECT_THAT(desktop().calls.of({"MenuItem::setState", "setBool", "setActivationPolicy"}),
                ElementsAre("MenuItem::setState(Enable Dock Icon, on)",
                            "setBool(true, enableDockIcon)", "setActivationPolicy(regular)"));
}

TEST_F(StatusMenuSwitches, TheDockIconComesAndGoesAtOnce) {
    choose({"Preferences", "Enable Dock Icon"});
    EXPECT_EQ(policy(), ActivationPolicy::regular);
    EXPECT_TRUE(isChecked("Preferences", "Enable Dock Icon"));
    EXPECT_EQ(stored("enableDockIcon"), DefaultsValue(true));
    choose({"Preferences", "Enable Dock Icon"});
    EXPECT_EQ(policy(), ActivationPolicy::accessory);
    EXPECT_FALSE(isChecked("Preferences", "Enable Dock Icon"));
    EXPECT_EQ(stored("enableDockIcon"), DefaultsValue(false));
}

TEST_F(StatusMenuSwitches, ARefusedDockIconIsNotRolledBack) {
    desktop().application.refusesPolicy = true;
    choose({"Preferences", "Enable Dock Icon"});
    EXPECT_EQ(policy(), ActivationPolicy::accessory);
    EXPECT_TRUE(isChecked("Preferences", "Enable Dock Icon"));
    EXPECT_EQ(stored("enableDockIcon"), DefaultsValue(true));
}

TEST_F(StatusMenuSwitches, AutoLaunchRegistersTheLoginItemAndRemovesIt) {
    choose({"Preferences", "Auto Launch at Login"});
    EXPECT_EQ(desktop().loginItem.status, LoginItemStatus::enabled);
    EXPECT_EQ(stored("autoLaunchAtLogin"), DefaultsValue(true));
    choose({"Preferences", "Auto Launch at Login"});
    EXPECT_EQ(desktop().loginItem.status, LoginItemStatus::notRegistered);
    EXPECT_EQ(stored("autoLaunchAtLogin"), DefaultsValue(false));
}

TEST_F(StatusMenuSwitches, AFailedLoginItemIsLoggedAndNotRolledBack) {
    desktop().loginItem.registerError = "busy";
    choose({"Preferences", "Auto Launch at Login"});
    EXPECT_THAT(desktop().log.lines,
                ElementsAre("Quellbar: failed to update login item state: busy"));
    EXPECT_TRUE(isChecked("Preferences", "Auto Launch at Login"));
    EXPECT_EQ(stored("autoLaunchAtLogin"), DefaultsValue(true));
}

TEST_F(StatusMenuSwitches, ShortcutsOffUnregistersTheShortcutAtOnce) {
    HotKeyManager::shared().registerHotKey(Preferences::shared().minimizeAllShortcut());
    choose({"Preferences", "Enable Shortcuts"});
    EXPECT_THAT(desktop().hotKeys.registrations(), IsEmpty());
    EXPECT_EQ(stored("shortcutsEnabled"), DefaultsValue(false));
}

TEST_F(StatusMenuSwitches, ShortcutsOnRegistersTheShortcutThatIsStoredByThen) {
    choose({"Preferences", "Enable Shortcuts"});
    Preferences::shared().setMinimizeAllShortcut({12, cmdKey});
    choose({"Preferences", "Enable Shortcuts"});
    ASSERT_EQ(desktop().hotKeys.registrations().size(), 1U);
    EXPECT_EQ(desktop().hotKeys.registrations().front().combination,
              (simulated::KeyCombination{12, 0x100}));
}

TEST_F(StatusMenuSwitches, ShortcutsOnWithACombinationThatIsTakenStaysCheckedAndSilent) {
    desktop().hotKeys.holdElsewhere({46, 0x900});
    choose({"Preferences", "Enable Shortcuts"});
    choose({"Preferences", "Enable Shortcuts"});
    EXPECT_TRUE(isChecked("Preferences", "Enable Shortcuts"));
    EXPECT_THAT(desktop().hotKeys.registrations(), IsEmpty());
    EXPECT_THAT(desktop().log.lines, IsEmpty());
}

TEST_F(StatusMenuSwitches, FlipTheirOwnMarkWhateverIsStored) {
    store("enableDockIcon", true); // not checked when the menu was built
    choose({"Preferences", "Enable Dock Icon"});
    EXPECT_EQ(stored("enableDockIcon"), DefaultsValue(true));
    EXPECT_TRUE(isChecked("Preferences", "Enable Dock Icon"));
}

TEST_F(StatusMenuSwitches, WhereNothingCanBeStoredAreCheckedAndAppliedAllTheSame) {
    desktop().userDefaults.isWritable = false;
    choose({"Preferences", "Enable Dock Icon"});
    EXPECT_EQ(policy(), ActivationPolicy::regular);
    EXPECT_TRUE(isChecked("Preferences", "Enable Dock Icon"));
    EXPECT_FALSE(desktop().userDefaults.stored.contains("enableDockIcon"));
}

TEST_F(StatusMenuSwitches, ChangedInTheSettingsWindowKeepTheirMarksInTheMenu) {
    choose({"Settings…"});
    desktop().windows.titled("Quellbar Settings").checkbox("Enable Shortcuts").click();
    EXPECT_EQ(stored("shortcutsEnabled"), DefaultsValue(false));
    item().openMenu();
    EXPECT_TRUE(isChecked("Preferences", "Enable Shortcuts"));
}

TEST_F(StatusMenuSwitches, WithTheDockIconOnTheProgramsOwnWindowIsMinimizedToo) {
    choose({"Settings…"});
    const auto& window = desktop().windows.titled("Quellbar Settings");
    item().openMenu().click(*menu().items().at(0));
    EXPECT_TRUE(window.isVisible());
    choose({"Preferences", "Enable Dock Icon"});
    item().openMenu().click(*menu().items().at(0));
    EXPECT_FALSE(window.isVisible());
    EXPECT_TRUE(window.isOpen());
}

} // namespace
