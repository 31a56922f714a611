// The harness itself: what every other test here leans on.
#include "tests/desktop/EveryManager.h"
#include "tests/desktop/support/Base64.h"
#include "tests/desktop/support/KeyGrabs.h"
#include "tests/desktop/support/Keyboard.h"
#include "tests/desktop/support/MinimizeRequests.h"
#include "tests/desktop/support/Process.h"
#include "tests/desktop/support/Quellbar.h"
#include "tests/desktop/support/TestWindows.h"
#include "tests/desktop/support/VirtualDesktop.h"
#include "tests/desktop/support/Windows.h"

#include <gtest/gtest.h>

#include <csignal>

namespace {

using namespace desktop;

Command shell(const std::string& script) {
    return {.arguments = {"sh", "-c", script}, .environment = {{"PATH", searchPath()}}};
}

TEST(Process, TellsHowItEnded) {
    EXPECT_EQ(Process(shell("exit 3")).wait(), (Ended{.status = 3}));
    EXPECT_EQ(Process(shell("kill -9 $$")).wait(), (Ended{.signal = SIGKILL}));
}

TEST(Process, ThatDoesNotListenIsKilled) {
    Channel channel;
    Command deaf = shell("trap '' TERM; echo ready; while :; do sleep 60; done");
    deaf.inherited = {{channel.farEnd(), STDOUT_FILENO}};
    Process process(deaf);
    ASSERT_EQ(channel.nextLine(), "ready");
    const Deadline soon(std::chrono::milliseconds{50});
    EXPECT_EQ(process.end(SIGTERM, soon), (Ended{.signal = SIGKILL}));
}

TEST(Process, WhatItStartedEndsWithIt) {
    Channel channel;
    Command parent = shell("sleep 1000 & echo ready; wait");
    parent.inherited = {{channel.farEnd(), STDOUT_FILENO}};
    {
        Process process(parent);
        channel.closeFarEnd();
        ASSERT_EQ(channel.nextLine(), "ready");
    }
    // Only when the child is gone too has everyone let go of the channel.
    EXPECT_THROW(static_cast<void>(channel.nextLine()), ChannelClosed);
}

TEST(Process, EndsWithAProcessThatIsKilled) {
    Channel channel;
    Command child = shell("echo ready; exec sleep 1000");
    child.inherited = {{channel.farEnd(), STDOUT_FILENO}};
    EXPECT_EXIT(
        {
            const Process process(child);
            static_cast<void>(channel.nextLine());
            std::raise(SIGKILL);
        },
        testing::KilledBySignal(SIGKILL), "");
    channel.closeFarEnd();
    EXPECT_THROW(static_cast<void>(channel.nextLine()), ChannelClosed);
}

TEST(Base64, IsThatOfEveryOtherProgram) {
    EXPECT_EQ(base64Of(""), "");
    EXPECT_EQ(base64Of("f"), "Zg==");
    EXPECT_EQ(base64Of("fo"), "Zm8=");
    EXPECT_EQ(base64Of("foo"), "Zm9v");
    EXPECT_EQ(base64Of("\xff\xfe"), "//4=");
}

TEST(Base64, GivesTheBytesBack) {
    for (const std::string bytes : {"", "f", "fo", "foo", "\xff\xfe\xfd\xfc"}) {
        EXPECT_EQ(bytesOf(base64Of(bytes)), bytes);
    }
}

class OnEveryManager : public testing::TestWithParam<WindowManager> {};

INSTANTIATE_TEST_SUITE_P(, OnEveryManager, everyManager, testing::PrintToStringParamName());

TEST_P(OnEveryManager, AMinimizedWindowIsHiddenAndComesBack) {
    const VirtualDesktop desktop(GetParam());
    const Windows windows(desktop.display());
    TestWindows application(desktop);
    const auto opened = application.open(3);
    for (const auto window : opened) {
        EXPECT_FALSE(windows.isHidden(window));
        windows.minimize(window);
    }
    windows.waitUntilHidden(opened);
    windows.restore(opened.front());
    windows.waitUntilShown(opened.front());
    EXPECT_TRUE(windows.isHidden(opened.back()));
}

TEST_P(OnEveryManager, SettlingWaitsForEveryEarlierRequest) {
    const VirtualDesktop desktop(GetParam());
    const Windows windows(desktop.display());
    TestWindows application(desktop);
    const auto opened = application.open(50);
    for (const auto window : opened) {
        windows.minimize(window);
    }
    windows.settle();
    for (const auto window : opened) {
        EXPECT_TRUE(windows.isHidden(window));
    }
}

TEST_P(OnEveryManager, AnotherManagerCanFollowAKilledOne) {
    VirtualDesktop desktop(GetParam());
    desktop.endWindowManager();
    desktop.startWindowManager(WindowManager::openbox);
    TestWindows application(desktop);
    const auto window = application.open();
    EXPECT_TRUE(Windows(desktop.display()).isOnScreen(window));
}

TEST_P(OnEveryManager, AnApplicationCanDestroyWindowsWhileOthersAreMinimized) {
    const VirtualDesktop desktop(GetParam());
    const Windows windows(desktop.display());
    TestWindows application(desktop);
    const auto opened = application.open(3);
    application.destroyWhenMinimized(opened.front(), {opened.back()});
    windows.minimize(opened.front());
    windows.waitUntilGone(opened.back());
    EXPECT_TRUE(windows.exists(opened.front()));
    EXPECT_FALSE(windows.exists(opened.back()));
}

TEST(MinimizeRequests, AreCountedByWindow) {
    const VirtualDesktop desktop;
    MinimizeRequests requests(desktop.display());
    TestWindows application(desktop);
    const auto window = application.open();
    const Windows windows(desktop.display());
    windows.minimize(window);
    windows.minimize(window);
    requests.waitFor(2);
    EXPECT_EQ(requests.count(window), 2U);
}

TEST(KeyGrabs, ACombinationIsHeldByOneClientAtATime) {
    const VirtualDesktop desktop(WindowManager::none);
    KeyGrabs holder(desktop.display());
    KeyGrabs other(desktop.display());
    EXPECT_TRUE(other.isFree(defaultShortcut));
    ASSERT_TRUE(holder.take(defaultShortcut));
    EXPECT_TRUE(other.isTaken(defaultShortcut));
    EXPECT_FALSE(other.isFree(defaultShortcut));
    EXPECT_FALSE(other.take(defaultShortcut));
    holder.giveBack(defaultShortcut);
    EXPECT_TRUE(other.take(defaultShortcut));
}

TEST(Keyboard, AGrabbedCombinationIsPressedWhateverTheLocks) {
    const VirtualDesktop desktop;
    Keyboard keyboard(desktop.display());
    KeyGrabs holder(desktop.display());
    ASSERT_TRUE(holder.take(defaultShortcut));
    keyboard.press(defaultShortcut);
    EXPECT_EQ(holder.presses(), 1);
    keyboard.turnOn(key::numLock);
    keyboard.turnOn(key::capsLock);
    keyboard.press(defaultShortcut);
    EXPECT_EQ(holder.presses(), 1);
}

TEST(Keyboard, AHeldKeyRepeats) {
    const VirtualDesktop desktop;
    Keyboard keyboard(desktop.display());
    KeyGrabs holder(desktop.display());
    ASSERT_TRUE(holder.take(defaultShortcut));
    repeatKeysFast(desktop);
    keyboard.down(defaultShortcut);
    int presses = 0;
    waitUntil([&] { return (presses += holder.presses()) >= 5; }, "repeats of a held key");
    keyboard.up(defaultShortcut);
}

} // namespace
