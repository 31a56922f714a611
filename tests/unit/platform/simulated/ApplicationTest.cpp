#include "platform/Application.h"
#include "platform/MainQueue.h"
#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

#include <unistd.h>

namespace {

using platform::ActivationPolicy;
using simulated::desktop;
using testing::ElementsAre;
using testing::ExitedWithCode;
using testing::IsEmpty;

class Delegate final : public platform::ApplicationDelegate {
  public:
    void applicationDidFinishLaunching() override {
        heard.emplace_back("launched");
        onLaunch();
    }
    void applicationDidReopen() override { heard.emplace_back("reopened"); }
    void applicationWillTerminate() override {
        heard.emplace_back("will terminate");
        onTermination();
    }

    std::vector<std::string> heard;
    std::function<void()> onLaunch = [] {};
    std::function<void()> onTermination = [] {};
};

class SimulatedApplication : public testing::Test {
  protected:
    SimulatedApplication() { application.setDelegate(&delegate); }

    Delegate delegate;
    platform::Application& application = platform::Application::shared();
};

using SimulatedApplicationDeathTest = SimulatedApplication;

TEST(SimulatedApplicationObject, IsMadeByTheFirstUseAlone) {
    EXPECT_EQ(platform::Application::current(), nullptr);
    auto* const application = &platform::Application::shared();
    EXPECT_EQ(platform::Application::current(), application);
    EXPECT_EQ(&platform::Application::shared(), application);
    EXPECT_THAT(desktop().calls.all(), ElementsAre("Application::shared()"));
}

TEST(SimulatedApplicationObject, PutsThisProcessAmongTheRunningApplications) {
    EXPECT_THAT(desktop().workspace.running(), IsEmpty());
    platform::Application::shared();
    EXPECT_THAT(desktop().workspace.running(), ElementsAre(&desktop().application.self()));
    EXPECT_EQ(desktop().application.self().processIdentifier, ::getpid());
}

TEST(SimulatedApplicationObjectDeathTest, EndsTheProcessWhereThereIsNoDesktop) {
    desktop().application.start = simulated::Application::Start::findsNoDesktop;
    EXPECT_EXIT(platform::Application::shared(), ExitedWithCode(1), "there is no desktop");
}

TEST(SimulatedApplicationObjectDeathTest, EndsTheProcessWhereTheProgramRunsAlready) {
    desktop().application.start = simulated::Application::Start::findsItRunning;
    EXPECT_EXIT(platform::Application::shared(), ExitedWithCode(0), "the program runs already");
}

TEST(SimulatedApplicationObjectDeathTest, CannotBeUsedBeforeItIsMade) {
    EXPECT_DEATH((void)desktop().application.self(), "has no application object yet");
    EXPECT_DEATH(desktop().application.launch(), "launches without an application object");
    EXPECT_DEATH(desktop().application.quit(), "quits a program that has not started");
    EXPECT_DEATH(desktop().application.reopen(), "a second time that does not run");
}

TEST_F(SimulatedApplication, RunsFromLaunchThroughTheQueueToTermination) {
    desktop().mainQueue.post([&] { delegate.heard.emplace_back("first turn"); });
    delegate.onLaunch = [&] {
        platform::dispatchAsyncOnMainQueue([&] {
            delegate.heard.emplace_back("task");
            platform::dispatchAsyncOnMainQueue([] { desktop().application.quit(); });
        });
    };
    application.run();
    EXPECT_THAT(delegate.heard, ElementsAre("launched", "first turn", "task", "will terminate"));
}

TEST_F(SimulatedApplication, LaunchesWithoutRunningForATestThatTurnsTheQueue) {
    EXPECT_FALSE(desktop().application.hasLaunched());
    desktop().application.launch();
    EXPECT_TRUE(desktop().application.hasLaunched());
    EXPECT_THAT(delegate.heard, ElementsAre("launched"));
}

TEST_F(SimulatedApplication, StartedASecondTimeTellsTheDelegateEachTime) {
    desktop().application.launch();
    desktop().application.reopen();
    desktop().application.reopen();
    EXPECT_THAT(delegate.heard, ElementsAre("launched", "reopened", "reopened"));
}

TEST_F(SimulatedApplication, EndedTwiceTellsTheDelegateOnce) {
    desktop().application.launch();
    delegate.onTermination = [&] { application.terminate(); };
    application.terminate();
    desktop().application.quit();
    EXPECT_TRUE(desktop().application.hasTerminated());
    EXPECT_THAT(delegate.heard, ElementsAre("launched", "will terminate"));
}

TEST_F(SimulatedApplication, EndedWhileTasksWaitRunsNoneOfThem) {
    desktop().mainQueue.post([&] { application.terminate(); });
    desktop().mainQueue.post([&] { delegate.heard.emplace_back("too late"); });
    application.run();
    EXPECT_THAT(delegate.heard, ElementsAre("launched", "will terminate"));
}

TEST_F(SimulatedApplication, IsGoneFromTheWorkspaceAfterItsEnd) {
    desktop().application.launch();
    delegate.onTermination = [] { EXPECT_FALSE(desktop().application.self().isTerminated()); };
    application.terminate();
    EXPECT_TRUE(desktop().application.self().isTerminated());
}

TEST_F(SimulatedApplication, WithoutADelegateRunsToo) {
    application.setDelegate(nullptr);
    desktop().mainQueue.post([&] { application.terminate(); });
    application.run();
    EXPECT_THAT(delegate.heard, IsEmpty());
}

TEST_F(SimulatedApplication, IsAccessoryUntilItChoosesAPolicy) {
    EXPECT_EQ(desktop().application.self().activationPolicy, ActivationPolicy::accessory);
    EXPECT_TRUE(application.setActivationPolicy(ActivationPolicy::regular));
    EXPECT_EQ(desktop().application.self().activationPolicy, ActivationPolicy::regular);
}

TEST_F(SimulatedApplication, CanBeRefusedAPolicy) {
    desktop().application.refusesPolicy = true;
    EXPECT_FALSE(application.setActivationPolicy(ActivationPolicy::regular));
    EXPECT_EQ(desktop().application.self().activationPolicy, ActivationPolicy::accessory);
}

TEST_F(SimulatedApplication, CallsNameThePolicy) {
    desktop().calls.clear();
    for (const auto policy :
         {ActivationPolicy::regular, ActivationPolicy::accessory, ActivationPolicy::prohibited}) {
        application.setActivationPolicy(policy);
    }
    EXPECT_THAT(desktop().calls.all(),
                ElementsAre("setActivationPolicy(regular)", "setActivationPolicy(accessory)",
                            "setActivationPolicy(prohibited)"));
}

TEST_F(SimulatedApplicationDeathTest, RunWithNothingToWaitForIsFatal) {
    EXPECT_DEATH(application.run(), "would run for ever");
}

TEST_F(SimulatedApplicationDeathTest, LaunchedTwiceIsFatal) {
    desktop().application.launch();
    EXPECT_DEATH(application.run(), "launches twice");
}

TEST_F(SimulatedApplicationDeathTest, EndedBeforeItHasLaunchedIsFatal) {
    EXPECT_DEATH(application.terminate(), "ended before it has launched");
}

} // namespace
