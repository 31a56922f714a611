// How the program starts, ends, and takes what happens to the desktop around it.
#include "tests/desktop/Session.h"
#include "tests/desktop/support/KeyGrabs.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstring>

namespace {

using namespace desktop;

/// Starts the program with a log of its own and waits for its end.
struct Start {
    explicit Start(const VirtualDesktop& desktop, const Environment& changes = {}) {
        Command command = Quellbar::command(desktop);
        command.output += ".other";
        for (const auto& [name, value] : changes) {
            command.environment[name] = value;
        }
        ended = Process(command).wait();
        lines = Log(command.output).lines();
    }

    Ended ended;
    std::vector<std::string> lines;
};

class EndingSignal : public testing::TestWithParam<int> {};

INSTANTIATE_TEST_SUITE_P(, EndingSignal, testing::Values(SIGTERM, SIGINT, SIGHUP),
                         [](const auto& signal) {
                             return std::string(sigabbrev_np(signal.param));
                         });

TEST_P(EndingSignal, EndsTheProgramWithStatusZeroAndWithoutAWord) {
    Session session;
    session.launch();
    const Log& log = session.quellbar->log();
    log.waitFor("CornerHoverMonitor started");
    EXPECT_EQ(session.quellbar->end(GetParam()), (Ended{.status = 0}));
    EXPECT_EQ(log.lines().size(), 1U);
}

TEST(Launching, LeavesTheSettingsFileUnwritten) {
    Session session;
    session.launch();
    session.press(defaultShortcut);
    session.quellbar->end();
    EXPECT_FALSE(std::filesystem::exists(defaultsFile(session.desktop)));
}

TEST(Launching, ASecondTimeOnADisplayEndsAtOnceAndSaysSo) {
    Session session;
    session.launch();
    const Start second(session.desktop);
    EXPECT_EQ(second.ended, (Ended{.status = 0}));
    ASSERT_EQ(second.lines.size(), 1U);
    EXPECT_NE(second.lines.front().find("already running"), std::string::npos);
    EXPECT_TRUE(session.minimizesBy(defaultShortcut));
}

TEST(Launching, WorksAgainAfterTheProgramWasKilled) {
    Session session;
    session.launch();
    session.quellbar->end(SIGKILL);
    session.launch();
    EXPECT_TRUE(session.minimizesBy(defaultShortcut));
}

TEST(Launching, WorksOnTwoDisplaysOfOneUser) {
    Session first;
    Session second;
    first.launch();
    second.launch();
    EXPECT_TRUE(first.minimizesBy(defaultShortcut));
    EXPECT_TRUE(second.minimizesBy(defaultShortcut));
}

TEST(Launching, WithADockIconMinimizesAsWell) {
    Session session;
    storeDefaults(session.desktop, R"({"enableDockIcon": true})");
    session.launch();
    EXPECT_TRUE(session.minimizesBy(defaultShortcut));
    EXPECT_EQ(session.quellbar->end(), (Ended{.status = 0}));
}

class WithoutDisplay : public testing::TestWithParam<std::string> {};

INSTANTIATE_TEST_SUITE_P(, WithoutDisplay, testing::Values("", ":99999", "nonsense"),
                         [](const auto& display) { return std::to_string(display.index); });

TEST_P(WithoutDisplay, LaunchingSaysSoInOneLineAndFails) {
    const VirtualDesktop desktop(WindowManager::none);
    const Start start(desktop, {{"DISPLAY", GetParam()}});
    EXPECT_EQ(start.ended, (Ended{.status = 1}));
    ASSERT_EQ(start.lines.size(), 1U);
    EXPECT_NE(start.lines.front().find("display"), std::string::npos);
}

/// The log is looked at, which a journal would take.
class WithoutWindowManager : public testing::Test {
  protected:
    void SetUp() override {
        if (std::filesystem::exists("/run/systemd/journal/socket")) {
            GTEST_SKIP() << "the journal of this machine takes the program's log";
        }
        session.launch();
        session.quellbar->log().waitFor("CornerHoverMonitor started");
    }

    /// The log without what is said at every launch.
    [[nodiscard]] std::size_t complaints() const {
        return session.quellbar->log().lines().size() - 1;
    }

    Session session{WindowManager::none};
};

TEST_F(WithoutWindowManager, LaunchingSaysSoInOneLineAndGoesOn) {
    EXPECT_EQ(complaints(), 1U);
    EXPECT_EQ(session.quellbar->log().count("no window manager"), 1U);
}

TEST_F(WithoutWindowManager, APressDoesNothingAndDoesNotSayItAgain) {
    const auto window = session.application.open();
    session.press(defaultShortcut);
    session.press(defaultShortcut);
    EXPECT_TRUE(session.windows.isOnScreen(window));
    EXPECT_EQ(complaints(), 1U);
}

TEST_F(WithoutWindowManager, APressWorksOnceOneIsThere) {
    session.desktop.startWindowManager(WindowManager::openbox);
    TestWindows application(session.desktop);
    const auto window = application.open();
    session.press(defaultShortcut);
    EXPECT_TRUE(session.windows.isHidden(window));
}

TEST_F(WithoutWindowManager, ItsLossAfterwardsIsSaidAnew) {
    session.desktop.startWindowManager(WindowManager::openbox);
    session.press(defaultShortcut);
    session.desktop.endWindowManager();
    session.press(defaultShortcut);
    EXPECT_EQ(session.quellbar->log().count("no window manager"), 2U);
}

TEST(LossOfTheWindowManager, LeavesWindowsAloneUntilAnotherOneIsThere) {
    Session session;
    session.launch();
    const auto window = session.application.open();
    session.desktop.endWindowManager();
    session.press(defaultShortcut);
    EXPECT_TRUE(session.windows.isOnScreen(window));
    session.desktop.startWindowManager(WindowManager::metacity);
    session.windows.waitUntilManaged(window);
    session.press(defaultShortcut);
    EXPECT_TRUE(session.windows.isHidden(window));
}

TEST(LossOfTheDisplay, EndsTheProgramInOrder) {
    VirtualDesktop desktop;
    Quellbar quellbar(desktop);
    desktop.endServer();
    EXPECT_EQ(quellbar.process().wait(), (Ended{.status = 0}));
}

} // namespace
