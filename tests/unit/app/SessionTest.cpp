#include "app/AppDelegate.h"
#include "keepawake/KeepAwakeManager.h"
#include "platform/simulated/Desktop.h"
#include "unit/support/Installation.h"

#include <gmock/gmock.h>

namespace {

using namespace std::chrono_literals;
using platform::LoginItemStatus;
using platform::RunLoopMode;
using simulated::desktop;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

constexpr platform::Point bottomRight{1439, 0};

void store(const std::string& key, platform::DefaultsValue value) {
    desktop().userDefaults.stored[key] = std::move(value);
}

/// From the program's launch to its end.
class Session : public testing::Test {
  protected:
    void SetUp() override {
        installQuellbar();
        platform::Application::shared().setDelegate(&delegate_);
        desktop().calls.clear();
    }

    static void launch() { desktop().application.launch(); }
    /// The calls that ending consists of, without what becomes of the menu.
    static std::vector<std::string> stepsTaken() {
        return desktop().calls.of(
            {"unregisterEventHotKey", "Timer::invalidate", "releasePowerAssertion"});
    }
    static void launchAndForget() {
        launch();
        desktop().calls.clear();
    }

    AppDelegate delegate_;
};

TEST_F(Session, BeginsWithTheCornersAfterTheShortcutAndTheLoginItemLast) {
    store("autoLaunchAtLogin", true);
    launch();
    EXPECT_THAT(
        desktop().calls.of({"registerEventHotKey", "Timer::repeatingTimer", "addTimerToMainRunLoop",
                            "Logger::log", "loginItemStatus", "registerLoginItem"}),
        ElementsAre("registerEventHotKey(46, 0x900, QLBR, 1)", "Timer::repeatingTimer(80 ms)",
                    "addTimerToMainRunLoop(commonModes)",
                    "Logger::log(CornerHoverMonitor started, enabled corners: [bottomRight])",
                    "loginItemStatus()", "registerLoginItem()"));
}

TEST_F(Session, BeginsWithOneTimer) {
    launch();
    EXPECT_EQ(desktop().runLoop.timerCount(), 1U);
    EXPECT_EQ(desktop().runLoop.timerCount(RunLoopMode::commonModes), 1U);
}

TEST_F(Session, PollsTheCornersEvenIfNoneIsEnabledAtItsBeginning) {
    store("hotCorners", platform::StringArray{});
    const auto& inbox = desktop().workspace.launch("Mail").openWindow("Inbox");
    launch();
    desktop().screens.pointer = bottomRight;
    desktop().runLoop.run(5s);
    EXPECT_FALSE(inbox.isMinimized);
    store("hotCorners", platform::StringArray{"bottomRight"});
    desktop().runLoop.run(400ms);
    EXPECT_TRUE(inbox.isMinimized);
}

TEST_F(Session, RevealsTheDesktopFromTheBottomRightCornerWithoutAnySetting) {
    const auto& inbox = desktop().workspace.launch("Mail").openWindow("Inbox");
    launch();
    desktop().screens.pointer = bottomRight;
    desktop().runLoop.run(400ms);
    EXPECT_TRUE(inbox.isMinimized);
}

TEST_F(Session, WithoutTheWishLeavesTheLoginItemAsItIs) {
    desktop().loginItem.status = LoginItemStatus::enabled;
    launch();
    EXPECT_THAT(desktop().calls.of({"loginItemStatus", "registerLoginItem", "unregisterLoginItem"}),
                IsEmpty());
    EXPECT_EQ(desktop().loginItem.status, LoginItemStatus::enabled);
}

TEST_F(Session, WithTheWishRenewsALoginItemThatIsNotEnabled) {
    store("autoLaunchAtLogin", true);
    desktop().loginItem.status = LoginItemStatus::requiresApproval;
    launch();
    EXPECT_EQ(desktop().loginItem.status, LoginItemStatus::enabled);
}

TEST_F(Session, BeginsThoughTheLoginItemIsRefused) {
    store("autoLaunchAtLogin", true);
    desktop().loginItem.registerError = "busy";
    launch();
    EXPECT_THAT(desktop().log.lines,
                ElementsAre("Quellbar: failed to update login item state: busy"));
    EXPECT_EQ(desktop().runLoop.timerCount(), 1U);
}

TEST_F(Session, ReadsTheWishForTheLoginItemAtItsStep) {
    desktop().calls.during("Timer::repeatingTimer(80 ms)",
                           [] { store("autoLaunchAtLogin", true); });
    launch();
    EXPECT_EQ(desktop().loginItem.status, LoginItemStatus::enabled);
}

TEST_F(Session, BeginsWithoutKeepingTheDisplayAwake) {
    launch();
    desktop().runLoop.run(10s);
    EXPECT_FALSE(desktop().powerAssertions.displayStaysAwake());
}

TEST_F(Session, EndsWithTheShortcutThenTheCornersThenKeepAwake) {
    launch();
    KeepAwakeManager::shared().start(60);
    desktop().calls.clear();
    desktop().application.quit();
    EXPECT_THAT(stepsTaken(), ElementsAre("unregisterEventHotKey(46, 0x900)", "Timer::invalidate()",
                                          "releasePowerAssertion(1)", "Timer::invalidate()"));
}

TEST_F(Session, EndsTheCornersBeforeItLetsTheDisplaySleep) {
    launch();
    KeepAwakeManager::shared().start(60);
    desktop().calls.during("releasePowerAssertion(1)", [] {
        EXPECT_EQ(desktop().runLoop.timerCount(RunLoopMode::commonModes), 0U);
        EXPECT_FALSE(desktop().application.self().isTerminated());
    });
    desktop().application.quit();
    EXPECT_FALSE(desktop().powerAssertions.displayStaysAwake());
    EXPECT_EQ(desktop().runLoop.timerCount(), 0U);
}

TEST_F(Session, EndsWithoutReleasingWhatIsNotHeld) {
    launchAndForget();
    desktop().application.quit();
    EXPECT_THAT(stepsTaken(),
                ElementsAre("unregisterEventHotKey(46, 0x900)", "Timer::invalidate()"));
}

TEST_F(Session, EndsThoughTheReleaseIsRefused) {
    launch();
    KeepAwakeManager::shared().start(60);
    desktop().powerAssertions.releaseStatus = platform::kIOReturnError;
    desktop().application.quit();
    EXPECT_TRUE(desktop().application.hasTerminated());
    EXPECT_EQ(desktop().runLoop.timerCount(), 0U);
}

TEST_F(Session, EndsWithTheLoginItemAsItIs) {
    store("autoLaunchAtLogin", true);
    launchAndForget();
    desktop().application.quit();
    EXPECT_THAT(desktop().calls.of({"loginItemStatus", "unregisterLoginItem"}), IsEmpty());
    EXPECT_EQ(desktop().loginItem.status, LoginItemStatus::enabled);
}

TEST_F(Session, TellsOfTheEndOfKeepAwakeEvenIfNoneRan) {
    struct Observer final : KeepAwakeManagerDelegate {
        void keepAwakeDidChangeState(bool active, double remaining) override {
            reports.emplace_back(active, remaining);
        }
        std::vector<std::pair<bool, double>> reports;
    };
    const auto observer = std::make_shared<Observer>();
    launch();
    KeepAwakeManager::shared().delegate = observer; // in place of the status item
    EXPECT_THAT(observer->reports, IsEmpty());
    desktop().application.quit();
    EXPECT_THAT(observer->reports, ElementsAre(std::pair(false, 0.0)));
}

} // namespace
