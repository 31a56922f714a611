// The program's own windows among those of other programs, on every window manager.
#include "tests/desktop/support/OwnWindows.h"
#include "tests/desktop/EveryManager.h"
#include "tests/desktop/Session.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace {

using namespace desktop;

constexpr auto skipTaskbar = "_NET_WM_STATE_SKIP_TASKBAR";
constexpr auto skipPager = "_NET_WM_STATE_SKIP_PAGER";

// In the settings window.
constexpr ContentPoint dockIconCheckbox{.x = 60, .y = 112};

/// Covers all of the screen but its edges.
const WindowSpec largeWindow{.geometry = {.x = 40, .y = 40, .width = 1180, .height = 700}};

class TheProgramsWindows : public testing::TestWithParam<WindowManager> {
  protected:
    void launch(std::string_view settings = "{}") {
        storeDefaults(session.desktop, settings);
        session.launch();
    }

    void waitForState(xcb_window_t window, std::string_view state, bool isSet) {
        waitUntil([&] { return session.windows.hasState(window, state) == isSet; },
                  std::string(state) + " to change");
    }

    // Asks again and again: when the program's window is seen to be active, the program may not
    // have asked for that for the last time.
    void bringForward(xcb_window_t window) {
        waitUntil(
            [&] {
                session.windows.restore(window);
                return own.isActive(window);
            },
            "another program to be active");
    }

    Session session{GetParam()};
    OwnWindows own{session.desktop.display()};
};

INSTANTIATE_TEST_SUITE_P(, TheProgramsWindows, everyManager, testing::PrintToStringParamName());

TEST_P(TheProgramsWindows, ComeInFrontOfAnotherProgramThatHasTheKeyboard) {
    const auto other = session.application.open(largeWindow);
    launch();
    bringForward(other);
    const auto settings = own.openSettings();
    EXPECT_TRUE(own.isOnTop(settings));
    bringForward(other);
    const auto about = own.openAbout();
    EXPECT_TRUE(own.isOnTop(about));
    bringForward(other);
    EXPECT_EQ(own.openSettings(), settings);
    EXPECT_TRUE(own.isOnTop(settings));
}

TEST_P(TheProgramsWindows, AreTheSettingsWhenTheProgramIsStartedASecondTime) {
    const auto other = session.application.open(largeWindow);
    launch();
    xcb_window_t settings = XCB_NONE;
    for (int i = 0; i < 2; ++i) {
        bringForward(other);
        Process second(Quellbar::command(session.desktop));
        EXPECT_EQ(second.wait(), (Ended{.status = 0}));
        const auto shown = own.waitForSettings();
        EXPECT_TRUE(own.isOnTop(shown));
        EXPECT_TRUE(settings == XCB_NONE || shown == settings);
        settings = shown;
    }
}

TEST(TheSettingsWindow, HasTheKeyboardWithoutAWindowManager) {
    Session session{WindowManager::none};
    session.launch();
    OwnWindows own{session.desktop.display()};
    own.openMenu();
    session.keyboard.press({.modifiers = {key::leftControl}, .key = key::comma});
    const XDisplay display(session.desktop.display());
    waitUntil([&] { return display.text(display.focus(), "_NET_WM_NAME") == "Quellbar Settings"; },
              "the settings to have the keyboard");
}

TEST_P(TheProgramsWindows, HaveTheIconThatIsInstalled) {
    const auto theme = session.desktop.home() / ".local/share/icons/hicolor";
    std::filesystem::create_directories(theme / "64x64/apps");
    std::ofstream(theme / "index.theme") << "[Icon Theme]\nName=Hicolor\nDirectories=64x64/apps\n"
                                            "[64x64/apps]\nSize=64\nType=Threshold\n";
    std::filesystem::copy(QUELLBAR_TEST_ICON, theme / "64x64/apps/io.github.quellbar.Quellbar.png");
    launch();
    const auto icon =
        XDisplay(session.desktop.display()).property(own.openSettings(), "_NET_WM_ICON");
    ASSERT_GE(icon.size(), 2U);
    EXPECT_EQ(icon[0], 64U); // pixels across, and down
    EXPECT_EQ(icon[1], 64U);
}

TEST_P(TheProgramsWindows, ComeBackWhereTheyWereClosed) {
    launch();
    const auto settings = own.openSettings();
    const ScreenPoint first = own.place(settings);
    session.windows.move(settings, 111, 222);
    waitUntil([&] { return own.place(settings) != first; }, "the window to move");
    session.windows.settle();
    const ScreenPoint moved = own.place(settings);
    for (int i = 0; i < 3; ++i) {
        own.close(settings);
        EXPECT_EQ(own.openSettings(), settings);
        session.windows.settle();
        EXPECT_EQ(own.place(settings), moved);
    }
}

TEST_P(TheProgramsWindows, AreOutOfTheTaskBarWithoutTheDockIcon) {
    launch();
    const auto settings = own.openSettings();
    waitForState(settings, skipTaskbar, true);
    waitForState(settings, skipPager, true);
    own.close(settings);
    own.openSettings();
    waitForState(settings, skipTaskbar, true);
    waitForState(settings, skipPager, true);
}

TEST_P(TheProgramsWindows, EnterAndLeaveTheTaskBarWithTheDockIcon) {
    launch();
    const auto settings = own.openSettings();
    waitForState(settings, skipTaskbar, true);
    own.click(settings, dockIconCheckbox);
    waitForState(settings, skipTaskbar, false);
    waitForState(settings, skipPager, false);
    own.click(settings, dockIconCheckbox);
    waitForState(settings, skipTaskbar, true);
    waitForState(settings, skipPager, true);
}

TEST_P(TheProgramsWindows, AreLeftAloneByMinimizeAllWithoutTheDockIcon) {
    launch();
    const auto settings = own.openSettings();
    waitForState(settings, skipTaskbar, true);
    EXPECT_TRUE(session.minimizesBy(defaultShortcut));
    EXPECT_FALSE(session.windows.isHidden(settings));
}

// As often as the user likes: the window may be minimized by programs again after it came back, and
// by its own controls it may not.
TEST_P(TheProgramsWindows, AreMinimizedWithAllOthersWithTheDockIcon) {
    launch(R"({"enableDockIcon": true})");
    const auto settings = own.openSettings();
    const auto about = own.openAbout();
    for (int i = 0; i < 2; ++i) {
        session.keyboard.press(defaultShortcut);
        session.windows.waitUntilHidden(settings);
        session.windows.waitUntilHidden(about);
        EXPECT_EQ(own.openSettings(), settings);
        session.windows.waitUntilShown(settings);
        EXPECT_EQ(own.openAbout(), about);
        session.windows.waitUntilShown(about);
    }
}

TEST_P(TheProgramsWindows, LeaveTheStatusItemWhereItIsWhenTheyAreMinimized) {
    launch(R"({"enableDockIcon": true})");
    const auto settings = own.openSettings();
    session.keyboard.press(defaultShortcut);
    session.windows.waitUntilHidden(settings);
    own.openMenu();
}

} // namespace
