#include "minimize/WindowMinimizer.h"

#include "platform/Application.h"
#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

#include <type_traits>

namespace {

using platform::ActivationPolicy;
using simulated::desktop;
using testing::ElementsAre;

static_assert(!std::is_default_constructible_v<WindowMinimizer>);

simulated::RunningApplication& launch(const std::string& name,
                                      ActivationPolicy policy = ActivationPolicy::regular) {
    return desktop().workspace.launch(name, policy);
}

TEST(WindowMinimizer, MinimizesEveryWindowOfEveryRegularApplication) {
    auto& mail = launch("Mail");
    auto& terminal = launch("Terminal");
    const auto& inbox = mail.openWindow("Inbox");
    const auto& draft = mail.openWindow("Draft");
    const auto& shell = terminal.openWindow("Shell");
    WindowMinimizer::minimizeAllWindows();
    EXPECT_TRUE(inbox.isMinimized);
    EXPECT_TRUE(draft.isMinimized);
    EXPECT_TRUE(shell.isMinimized);
}

TEST(WindowMinimizer, CollectsTheCandidatesBeforeItHandlesAnyAndGoesInTheOrderOfTheList) {
    auto& mail = launch("Mail");
    auto& terminal = launch("Terminal");
    mail.openWindow("Inbox");
    mail.openWindow("Draft");
    terminal.openWindow("Shell");
    WindowMinimizer::minimizeAllWindows();
    EXPECT_THAT(desktop().calls.all(),
                ElementsAre("isProcessTrusted()", "runningApplications()",          //
                            "activationPolicy(Mail)", "isTerminated(Mail)",         //
                            "activationPolicy(Terminal)", "isTerminated(Terminal)", //
                            "processIdentifier(Mail)", "createApplication(Mail)",
                            "copyAttributeValue(Mail, AXWindows)",
                            "setAttributeValue(Inbox, AXMinimized, true)",
                            "setAttributeValue(Draft, AXMinimized, true)",
                            "processIdentifier(Terminal)", "createApplication(Terminal)",
                            "copyAttributeValue(Terminal, AXWindows)",
                            "setAttributeValue(Shell, AXMinimized, true)"));
}

TEST(WindowMinimizer, AsksForTheTerminationOfRegularApplicationsAlone) {
    launch("Panel", ActivationPolicy::accessory);
    launch("Agent", ActivationPolicy::prohibited);
    launch("Mail");
    WindowMinimizer::minimizeAllWindows();
    EXPECT_THAT(desktop().calls.of({"activationPolicy", "isTerminated"}),
                ElementsAre("activationPolicy(Panel)", "activationPolicy(Agent)",
                            "activationPolicy(Mail)", "isTerminated(Mail)"));
}

TEST(WindowMinimizer, NeverTouchesAccessoryAndBackgroundApplications) {
    const auto& panel = launch("Panel", ActivationPolicy::accessory).openWindow("Panel window");
    const auto& agent = launch("Agent", ActivationPolicy::prohibited).openWindow("Agent window");
    const auto& inbox = launch("Mail").openWindow("Inbox");
    WindowMinimizer::minimizeAllWindows();
    EXPECT_FALSE(panel.isMinimized);
    EXPECT_FALSE(agent.isMinimized);
    EXPECT_TRUE(inbox.isMinimized);
    EXPECT_THAT(desktop().calls.of({"createApplication"}), ElementsAre("createApplication(Mail)"));
}

TEST(WindowMinimizer, MinimizesTheWindowsOfHiddenApplicationsToo) {
    auto& mail = launch("Mail");
    const auto& inbox = mail.openWindow("Inbox");
    mail.isHidden = true;
    WindowMinimizer::minimizeAllWindows();
    EXPECT_TRUE(inbox.isMinimized);
}

TEST(WindowMinimizer, AsksAWindowThatIsMinimizedAlreadyAndLeavesItSo) {
    auto& inbox = launch("Mail").openWindow("Inbox");
    inbox.isMinimized = true;
    WindowMinimizer::minimizeAllWindows();
    EXPECT_TRUE(inbox.isMinimized);
    EXPECT_THAT(desktop().calls.of({"setAttributeValue"}),
                ElementsAre("setAttributeValue(Inbox, AXMinimized, true)"));
}

TEST(WindowMinimizer, ASecondRequestChangesNothing) {
    const auto& inbox = launch("Mail").openWindow("Inbox");
    WindowMinimizer::minimizeAllWindows();
    WindowMinimizer::minimizeAllWindows();
    EXPECT_TRUE(inbox.isMinimized);
}

TEST(WindowMinimizer, EachRequestStartsFromAFreshList) {
    auto& mail = launch("Mail");
    auto& inbox = mail.openWindow("Inbox");
    WindowMinimizer::minimizeAllWindows();
    inbox.isMinimized = false;
    const auto& draft = mail.openWindow("Draft");
    const auto& shell = launch("Terminal").openWindow("Shell");
    desktop().calls.clear();
    WindowMinimizer::minimizeAllWindows();
    EXPECT_TRUE(inbox.isMinimized);
    EXPECT_TRUE(draft.isMinimized);
    EXPECT_TRUE(shell.isMinimized);
    EXPECT_EQ(desktop().calls.of({"runningApplications"}).size(), 1U);
}

TEST(WindowMinimizer, MinimizesTheProgramsOwnWindowsWhileItIsRegular) {
    platform::Application::shared().setActivationPolicy(ActivationPolicy::regular);
    const auto& settings = desktop().application.self().openWindow("Settings");
    WindowMinimizer::minimizeAllWindows();
    EXPECT_TRUE(settings.isMinimized);
}

TEST(WindowMinimizer, LeavesTheProgramsOwnWindowsAloneWhileItIsAccessory) {
    platform::Application::shared().setActivationPolicy(ActivationPolicy::accessory);
    const auto& settings = desktop().application.self().openWindow("Settings");
    WindowMinimizer::minimizeAllWindows();
    EXPECT_FALSE(settings.isMinimized);
}

TEST(WindowMinimizer, ReadsOnceAnApplicationAndWritesOnceAWindow) {
    for (int application = 0; application < 10; ++application) {
        auto& program = launch("Program " + std::to_string(application));
        for (int window = 0; window < 100; ++window) {
            program.openWindow(program.name + ", " + std::to_string(window));
        }
    }
    WindowMinimizer::minimizeAllWindows();
    EXPECT_EQ(desktop().calls.of({"copyAttributeValue"}).size(), 10U);
    EXPECT_EQ(desktop().calls.of({"setAttributeValue"}).size(), 1000U);
}

TEST(WindowMinimizer, IsDoneWhenItReturns) {
    launch("Mail").openWindow("Inbox");
    WindowMinimizer::minimizeAllWindows();
    EXPECT_EQ(desktop().mainQueue.waiting(), 0U);
}

TEST(WindowMinimizer, OnAnEmptyDesktopDoesNothing) {
    WindowMinimizer::minimizeAllWindows();
    EXPECT_THAT(desktop().calls.all(), ElementsAre("isProcessTrusted()", "runningApplications()"));
}

} // namespace
