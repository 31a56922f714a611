#include "settings/Preferences.h"
#include "unit/menubar/StatusMenuTest.h"

namespace {

using simulated::desktop;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using testing::SizeIs;

using StatusMenuWording = WithStatusMenu;

TEST_F(StatusMenuWording, FromTopToBottomIsTheWholeProgram) {
    EXPECT_THAT(linesOf(item().openMenu()),
                ElementsAre("Minimize All Windows  (⌥⌘M)", "---", "[Keep Awake: Off]",
                            "Keep Awake Controls >", "Desktop Reveal Corners >", "---",
                            "Preferences >", "Settings… ⌘,", "---", "About & Help", "---",
                            "Quit Quellbar ⌘q"));
}

TEST_F(StatusMenuWording, OfKeepAwakeHasTheTypographicMinus) {
    EXPECT_THAT(linesOf(submenu("Keep Awake Controls")),
                ElementsAre("Turn On", "---", "\u2212 30 min", "+ 30 min"));
}

TEST_F(StatusMenuWording, OfTheCornersFollowsTheirOrderAndChecksTheBottomRightOne) {
    EXPECT_THAT(linesOf(submenu("Desktop Reveal Corners")),
                ElementsAre("Top Left", "Top Right", "Bottom Left", "Bottom Right ✓"));
}

TEST_F(StatusMenuWording, OfThePreferencesChecksTheShortcutsAlone) {
    EXPECT_THAT(linesOf(submenu("Preferences")),
                ElementsAre("Auto Launch at Login", "Enable Dock Icon", "Enable Shortcuts ✓"));
}

TEST_F(StatusMenuWording, HasTwoSpacesBeforeTheShortcut) {
    EXPECT_EQ(menu().items().at(0)->title, "Minimize All Windows  (⌥⌘M)");
}

TEST_F(StatusMenuWording, NeverShowsTheBareTitle) {
    desktop().calls.clear();
    create();
    EXPECT_THAT(desktop().calls.of({"addItem"}), Contains("addItem(Minimize All Windows  (⌥⌘M))"));
    EXPECT_THAT(desktop().calls.of({"addItem"}), Not(Contains("addItem(Minimize All Windows)")));
}

TEST_F(StatusMenuWording, ShowsTheShortcutAlsoWhileShortcutsAreOff) {
    store("shortcutsEnabled", false);
    item().openMenu();
    EXPECT_EQ(menu().items().at(0)->title, "Minimize All Windows  (⌥⌘M)");
}

TEST_F(StatusMenuWording, ShowsANewShortcutWhenTheMenuOpensNextAndNotBefore) {
    Preferences::shared().setMinimizeAllShortcut({12, cmdKey});
    EXPECT_EQ(menu().items().at(0)->title, "Minimize All Windows  (⌥⌘M)");
    item().openMenu();
    EXPECT_EQ(menu().items().at(0)->title, "Minimize All Windows  (⌘Q)");
}

TEST_F(StatusMenuWording, OnOpeningNothingButTheShortcutIsReadOrChanged) {
    item().openMenu();
    EXPECT_THAT(
        desktop().calls.of({"boolForKey", "stringArrayForKey", "dataForKey", "MenuItem::setTitle",
                            "MenuItem::setState", "imageForResource", "setStringValue"}),
        ElementsAre("dataForKey(minimizeShortcut)",
                    "MenuItem::setTitle(Minimize All Windows  (⌥⌘M), "
                    "Minimize All Windows  (⌥⌘M))"));
}

TEST_F(StatusMenuWording, LeavesEveryItemEnabled) {
    for (const auto* const submenuTitle :
         {"Keep Awake Controls", "Desktop Reveal Corners", "Preferences"}) {
        EXPECT_FALSE(submenu(submenuTitle).autoenablesItems) << submenuTitle;
    }
    for (const simulated::MenuItem* const each : menu().items()) {
        EXPECT_TRUE(each->isSeparator || each->isEnabled()) << each->title;
    }
}

using NewStatusMenu = StatusMenuTest;

TEST_F(NewStatusMenu, ChecksWhatIsStored) {
    store("autoLaunchAtLogin", true);
    store("enableDockIcon", true);
    store("shortcutsEnabled", false);
    store("hotCorners", platform::StringArray{"topLeft", "bottomLeft"});
    create();
    EXPECT_THAT(linesOf(submenu("Preferences")),
                ElementsAre("Auto Launch at Login ✓", "Enable Dock Icon ✓", "Enable Shortcuts"));
    EXPECT_THAT(linesOf(submenu("Desktop Reveal Corners")),
                ElementsAre("Top Left ✓", "Top Right", "Bottom Left ✓", "Bottom Right"));
}

TEST_F(NewStatusMenu, ReadsTheCornersAnewForEachItem) {
    desktop().calls.during("stringArrayForKey(hotCorners)", [] {
        desktop().calls.during("stringArrayForKey(hotCorners)", [] {
            store("hotCorners", platform::StringArray{"topRight", "bottomLeft"});
        });
    });
    create();
    EXPECT_THAT(linesOf(submenu("Desktop Reveal Corners")),
                ElementsAre("Top Left", "Top Right ✓", "Bottom Left ✓", "Bottom Right"));
}

TEST_F(NewStatusMenu, IsAttachedToOneItemThatIsAsWideAsItNeeds) {
    create();
    EXPECT_THAT(desktop().statusBar.items(), SizeIs(1));
    EXPECT_EQ(item().length, platform::StatusItem::variableLength);
    EXPECT_EQ(desktop().calls.all().back(), "StatusItem::setMenu()");
}

TEST_F(NewStatusMenu, BeginsInTheOffPresentationAlsoDuringARun) {
    keepAwake.start(60);
    create();
    EXPECT_THAT(linesOf(menu()), Contains("[Keep Awake: Off]"));
    EXPECT_THAT(linesOf(submenu("Keep Awake Controls")), Contains("Turn On"));
    EXPECT_EQ(button().title.string, "");
}

TEST_F(NewStatusMenu, IsBuiltWhereTheItemHasNoButton) {
    desktop().statusBar.givesButtons = false;
    create();
    choose({"Keep Awake Controls", "Turn On"});
    EXPECT_TRUE(keepAwake.isActive());
    choose({"Keep Awake Controls", "Turn Off"});
    EXPECT_FALSE(keepAwake.isActive());
}

TEST_F(NewStatusMenu, GoesWithItsController) {
    create();
    controller.reset();
    EXPECT_THAT(desktop().statusBar.items(), SizeIs(0));
    keepAwake.start(60);
    EXPECT_TRUE(keepAwake.isActive());
}

} // namespace
