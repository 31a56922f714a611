// What one press of the shortcut does to real windows, on every window manager.
#include "tests/desktop/EveryManager.h"
#include "tests/desktop/Session.h"
#include "tests/desktop/support/MinimizeRequests.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>

namespace {

using namespace desktop;

class Minimizing : public testing::TestWithParam<WindowManager> {
  protected:
    void SetUp() override { session.launch(); }

    void pressShortcut() { session.press(defaultShortcut); }
    xcb_window_t open(const WindowSpec& spec = {}) { return session.application.open(spec); }
    [[nodiscard]] bool isHidden(xcb_window_t window) const {
        return session.windows.isHidden(window);
    }
    [[nodiscard]] bool isOnScreen(xcb_window_t window) const {
        return session.windows.isOnScreen(window);
    }

    /// How many of these windows are hidden.
    [[nodiscard]] std::size_t countHidden(const std::vector<xcb_window_t>& windows) const {
        const auto isOne = [this](xcb_window_t window) { return isHidden(window); };
        return static_cast<std::size_t>(std::ranges::count_if(windows, isOne));
    }

    Session session{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(, Minimizing, everyManager, testing::PrintToStringParamName());

TEST_P(Minimizing, HidesEveryWindowOfEveryApplication) {
    TestWindows other(session.desktop);
    std::vector<xcb_window_t> windows = session.application.open(3);
    windows.push_back(other.open({.type = WindowType::unsaid}));
    windows.push_back(other.open({.type = WindowType::dialog}));
    pressShortcut();
    EXPECT_EQ(countHidden(windows), windows.size());
}

TEST_P(Minimizing, HidesWindowsInEveryState) {
    const std::vector windows{
        open({.state = WindowState::fullscreen}),
        open({.state = WindowState::maximized}),
        open({.state = WindowState::above}),
        open({.state = WindowState::sticky}),
    };
    pressShortcut();
    EXPECT_EQ(countHidden(windows), windows.size());
}

TEST_P(Minimizing, HidesAWindowThatTellsNoProcess) {
    const auto window = open({.tellsPid = false});
    pressShortcut();
    EXPECT_TRUE(isHidden(window));
}

TEST_P(Minimizing, HidesTheWindowsOfEveryConnectionOfAnApplication) {
    const std::vector windows{open({.client = 0}), open({.client = 1})};
    pressShortcut();
    EXPECT_EQ(countHidden(windows), windows.size());
}

TEST_P(Minimizing, HidesAWindowOfAnotherDesktopAndStaysOnThisOne) {
    const auto here = open();
    const auto elsewhere = open({.desktop = 2});
    pressShortcut();
    EXPECT_TRUE(isHidden(here));
    EXPECT_TRUE(isHidden(elsewhere));
    EXPECT_EQ(session.windows.currentDesktop(), 0U);
}

TEST_P(Minimizing, HidesTheWindowsOfAnApplicationThatDoesNotAnswer) {
    TestWindows stopped(session.desktop);
    const auto deaf = stopped.open();
    const auto window = open();
    stopped.process().signal(SIGSTOP);
    pressShortcut();
    EXPECT_TRUE(isHidden(deaf));
    EXPECT_TRUE(isHidden(window));
}

TEST_P(Minimizing, HidesHundredsOfWindows) {
    const auto windows = session.application.open(200);
    pressShortcut();
    EXPECT_EQ(countHidden(windows), windows.size());
}

TEST_P(Minimizing, ADialogLeavesWithItsParentAndComesBackWithIt) {
    const auto parent = open();
    const auto dialog = open({.type = WindowType::dialog, .transientFor = parent});
    pressShortcut();
    EXPECT_TRUE(isHidden(parent));
    EXPECT_FALSE(isOnScreen(dialog));
    session.windows.restore(parent);
    session.settle();
    EXPECT_TRUE(isOnScreen(parent));
    EXPECT_TRUE(isOnScreen(dialog));
}

TEST_P(Minimizing, LeavesAPanelAndTheDesktopAlone) {
    TestWindows panel(session.desktop);
    TestWindows fileManager(session.desktop);
    const auto dock = panel.open({.type = WindowType::dock});
    const auto background = fileManager.open({.type = WindowType::desktop});
    const auto folder = fileManager.open();
    pressShortcut();
    EXPECT_TRUE(isHidden(folder));
    EXPECT_FALSE(isHidden(dock));
    EXPECT_FALSE(isHidden(background));
    EXPECT_TRUE(isOnScreen(dock));
    EXPECT_TRUE(isOnScreen(background));
}

TEST_P(Minimizing, LeavesAnApplicationThatIsNotInTheTaskBarAlone) {
    TestWindows utility(session.desktop);
    const auto window = utility.open({.state = WindowState::skipTaskbar});
    const auto ordinary = open();
    pressShortcut();
    EXPECT_TRUE(isHidden(ordinary));
    EXPECT_FALSE(isHidden(window));
    EXPECT_TRUE(isOnScreen(window));
}

TEST_P(Minimizing, LeavesMenusAndOtherPassingWindowsAlone) {
    const auto ordinary = open();
    const std::vector windows{
        open({.isManaged = false}),
        open({.type = WindowType::splash}),
        open({.type = WindowType::notification}),
        open({.type = WindowType::menu}),
        open({.type = WindowType::toolbar}),
    };
    pressShortcut();
    EXPECT_TRUE(isHidden(ordinary));
    EXPECT_EQ(countHidden(windows), 0U);
    for (const auto window : windows) {
        EXPECT_TRUE(isOnScreen(window));
    }
}

TEST_P(Minimizing, AWindowThatRefusesStaysWhileOthersOfItsApplicationGo) {
    const auto before = open();
    const auto refusing = open({.type = WindowType::toolbar});
    const auto after = open();
    pressShortcut();
    EXPECT_TRUE(isHidden(before));
    EXPECT_TRUE(isHidden(after));
    EXPECT_FALSE(isHidden(refusing));
    EXPECT_TRUE(isOnScreen(refusing));
}

TEST_P(Minimizing, AWindowThatIsMinimizedAlreadyStaysSo) {
    const auto minimized = open({.startsMinimized = true});
    const auto shown = open();
    pressShortcut();
    EXPECT_TRUE(isHidden(minimized));
    EXPECT_TRUE(isHidden(shown));
}

TEST_P(Minimizing, ASecondPressChangesNothing) {
    const auto windows = session.application.open(2);
    pressShortcut();
    pressShortcut();
    EXPECT_EQ(countHidden(windows), windows.size());
}

TEST_P(Minimizing, EachWindowThatWasMinimizedCanBeBroughtBackAndMinimizedAgain) {
    const auto windows = session.application.open(2);
    pressShortcut();
    session.windows.restore(windows.front());
    session.windows.waitUntilShown(windows.front());
    EXPECT_TRUE(isHidden(windows.back()));
    pressShortcut();
    EXPECT_EQ(countHidden(windows), windows.size());
}

TEST_P(Minimizing, AnApplicationWithoutWindowsIsPassedOver) {
    const TestWindows idle(session.desktop);
    const auto window = open();
    pressShortcut();
    EXPECT_TRUE(isHidden(window));
}

TEST_P(Minimizing, WindowsThatVanishDuringThePassDoNotHoldUpTheOthers) {
    TestWindows other(session.desktop);
    const auto vanishing = session.application.open(20);
    const auto first = open();
    const auto staying = other.open(5);
    session.application.destroyWhenMinimized(first, vanishing);
    pressShortcut();
    EXPECT_EQ(countHidden(staying), staying.size());
    EXPECT_TRUE(session.quellbar->process().isRunning());
}

TEST_P(Minimizing, AnApplicationThatEndsDuringThePassDoesNotHoldUpTheOthers) {
    TestWindows ending(session.desktop);
    const auto window = open();
    ending.endWhenMinimized(ending.open(3).front());
    pressShortcut();
    EXPECT_TRUE(isHidden(window));
    EXPECT_EQ(ending.process().wait().status, 0);
    pressShortcut();
    EXPECT_TRUE(session.quellbar->process().isRunning());
}

TEST_P(Minimizing, WorksAgainWhenAnotherManagerFollowsAKilledOne) {
    session.desktop.endWindowManager(SIGKILL);
    session.desktop.startWindowManager(WindowManager::openbox);
    const auto window = open();
    pressShortcut();
    EXPECT_TRUE(isHidden(window));
}

// Where a person cannot minimize a window without a minimize button or a task-bar entry. In openbox
// a person can.
class MinimizingByHints : public Minimizing {};

INSTANTIATE_TEST_SUITE_P(, MinimizingByHints,
                         testing::Values(WindowManager::xfwm4, WindowManager::metacity),
                         testing::PrintToStringParamName());

TEST_P(MinimizingByHints, AWindowThatCannotBeMinimizedByHandStays) {
    const auto withoutButton = open({.canBeMinimized = false});
    const auto palette = open({.state = WindowState::skipTaskbar});
    const auto other = open();
    pressShortcut();
    EXPECT_TRUE(isHidden(other));
    EXPECT_FALSE(isHidden(withoutButton));
    EXPECT_FALSE(isHidden(palette));
    EXPECT_TRUE(isOnScreen(withoutButton));
    EXPECT_TRUE(isOnScreen(palette));
}

// metacity takes minutes to open so many windows, even on a desktop that is not shown.
class MinimizingMany : public Minimizing {};

INSTANTIATE_TEST_SUITE_P(, MinimizingMany,
                         testing::Values(WindowManager::openbox, WindowManager::xfwm4),
                         testing::PrintToStringParamName());

TEST_P(MinimizingMany, HidesAThousandWindows) {
    const auto here = session.application.open(100);
    const auto elsewhere = session.application.open(900, {.desktop = 1});
    pressShortcut();
    EXPECT_EQ(countHidden(here), here.size());
    EXPECT_EQ(countHidden(elsewhere), elsewhere.size());
}

} // namespace
