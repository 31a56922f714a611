#include "windows/AboutWindowController.h"

#include "platform/Application.h"
#include "unit/windows/WindowTest.h"

namespace {

using simulated::desktop;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

class AboutWindow : public WindowTest {
  protected:
    static void open() {
        AboutWindowController::shared().window()->makeKeyAndOrderFront();
        platform::Application::shared().activateIgnoringOtherApps();
    }
    static simulated::ProgramWindow& window() { return desktop().windows.titled("About Quellbar"); }
};

TEST_F(AboutWindow, ShowsIconNameVersionCreditAndDescription) {
    open();
    EXPECT_THAT(
        contentsOf(window()),
        ElementsAre(
            "image icon_512x512 at (140, 200) 80x80",
            "label \"Quellbar\" at (0, 170) 360x24, boldSystem 18, centred",
            "label \"Version 1.0.1 (02.08.2026)\" at (0, 148) 360x18, secondaryLabel, centred",
            "label \"Created by Tarvik\" at (0, 128) 360x18, secondaryLabel, centred",
            "wrapping label \"Quellbar lives in your menu bar.\n"
            "\n"
            "\u2022 Minimize every window instantly with a global shortcut\n"
            "\u2022 Hover a screen corner to reveal the desktop\n"
            "\u2022 Keep Awake keeps your Mac from sleeping, with a live countdown shown right in "
            "the menu bar\n"
            "\u2022 Configure shortcuts, login item, and dock icon visibility from the Settings "
            "menu\" at (24, 20) 312x100, system 11, label"));
}

TEST_F(AboutWindow, HasNothingThatCanBeEdited) {
    open();
    EXPECT_THAT(contentsOf(window()), Each(Not(StartsWith("field"))));
    EXPECT_THAT(contentsOf(window()), Each(Not(HasSubstr("checkbox"))));
}

TEST_F(AboutWindow, Is360By300PointsInTheMiddleOfTheScreen) {
    open();
    EXPECT_EQ(window().contentSize(), (platform::Size{360, 300}));
    EXPECT_EQ(window().origin(), (platform::Point{540, 300}));
}

TEST_F(AboutWindow, OpenedTwiceIsOneWindowWhereTheUserLeftIt) {
    open();
    window().moveTo({12, 34});
    open();
    EXPECT_THAT(desktop().windows.all(), SizeIs(1));
    EXPECT_EQ(window().origin(), (platform::Point{12, 34}));
}

TEST_F(AboutWindow, ReopenedIsTheSameWindowWithItsContent) {
    open();
    const auto* const first = &window();
    const auto contents = window().contents();
    window().close();
    EXPECT_FALSE(window().isVisible());
    desktop().calls.clear();
    open();
    EXPECT_EQ(&window(), first);
    EXPECT_EQ(window().contents(), contents);
    EXPECT_TRUE(window().isVisible());
    EXPECT_THAT(desktop().calls.of({"imageForResource", "addSubview", "center"}), IsEmpty());
}

TEST_F(AboutWindow, ComesInFrontOfOtherProgramsWithoutADockIcon) {
    EXPECT_EQ(desktop().application.self().activationPolicy, platform::ActivationPolicy::accessory);
    EXPECT_FALSE(desktop().application.isActive());
    open();
    EXPECT_TRUE(window().isKey());
}

TEST_F(AboutWindow, WhereActivationIsDeclinedIsShownWithoutTheKeyboard) {
    desktop().application.declinesActivation = true;
    open();
    EXPECT_TRUE(window().isVisible());
    EXPECT_FALSE(window().isKey());
}

TEST_F(AboutWindow, WithoutTheIconHasAnEmptyPlaceForIt) {
    desktop().files.remove(desktop().bundle.path / "icon_512x512.png");
    desktop().files.addFolder(desktop().bundle.path / "Quellbar_Quellbar.bundle");
    open();
    EXPECT_EQ(contentsOf(window()).front(), "image none at (140, 200) 80x80");
    EXPECT_THAT(contentsOf(window()), SizeIs(5));
}

TEST_F(AboutWindow, WithoutAContentViewStaysEmpty) {
    desktop().windows.haveContentView = false;
    open();
    EXPECT_THAT(window().contents(), IsEmpty());
}

} // namespace
