#include "contract/World.h"
#include "platform/Application.h"
#include "platform/MainQueue.h"

#include <cstdio>
#include <cstdlib>

namespace {

using platform::ActivationPolicy;
using testing::ExitedWithCode;

static_assert(static_cast<int>(ActivationPolicy::regular) == 0);
static_assert(static_cast<int>(ActivationPolicy::accessory) == 1);
static_assert(static_cast<int>(ActivationPolicy::prohibited) == 2);

void say(const char* text) {
    std::fprintf(stderr, "%s;", text);
}

/// A program that says what happens to it, and ends itself in its first task.
class Delegate final : public platform::ApplicationDelegate {
  public:
    void applicationDidFinishLaunching() override {
        say("launched");
        platform::dispatchAsyncOnMainQueue([] {
            say("first task");
            platform::Application::shared().terminate();
            platform::Application::shared().terminate();
        });
    }
    void applicationDidReopen() override { say("reopened"); }
    void applicationWillTerminate() override {
        say("will terminate");
        platform::Application::shared().terminate();
    }
};

[[noreturn]] void runProgram() {
    Delegate delegate;
    auto& application = platform::Application::shared();
    application.setDelegate(&delegate);
    say("running");
    application.run();
    std::exit(EXIT_SUCCESS);
}

using ApplicationContract = contract::WorldTest;
using RunningApplicationContract = contract::ProgramTest;

TEST_F(ApplicationContract, ThereIsNoCurrentObjectUntilItIsMade) {
    EXPECT_EQ(platform::Application::current(), nullptr);
    auto* const application = &platform::Application::shared();
    EXPECT_EQ(platform::Application::current(), application);
    EXPECT_EQ(&platform::Application::shared(), application);
}

TEST_F(ApplicationContract, RunLaunchesTurnsTheQueueAndEndsWithStatusZero) {
    EXPECT_EXIT(runProgram(), ExitedWithCode(0), "running;launched;first task;will terminate;");
}

TEST_F(ApplicationContract, TheDelegateHearsOfEachEventOnce) {
    EXPECT_EXIT(runProgram(), ExitedWithCode(0), "^[^;]*;launched;first task;will terminate;$");
}

TEST_F(RunningApplicationContract, TheDesktopAcceptsTheRegularAndTheAccessoryPolicy) {
    EXPECT_TRUE(application_.setActivationPolicy(ActivationPolicy::regular));
    EXPECT_TRUE(application_.setActivationPolicy(ActivationPolicy::accessory));
}

} // namespace
