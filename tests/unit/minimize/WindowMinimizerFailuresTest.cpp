#include "minimize/WindowMinimizer.h"

#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

namespace {

using namespace std::chrono_literals;
using platform::AXError;
using simulated::desktop;
using testing::ElementsAre;

/// Two applications with two windows each; the tests go wrong with the first.
class WindowMinimizerFailures : public testing::Test {
  protected:
    [[nodiscard]] bool isShellMinimized() const { return shell_.isMinimized && logs_.isMinimized; }

    simulated::RunningApplication& mail_ = desktop().workspace.launch("Mail");
    simulated::Window& inbox_ = mail_.openWindow("Inbox");
    simulated::Window& draft_ = mail_.openWindow("Draft");
    simulated::RunningApplication& terminal_ = desktop().workspace.launch("Terminal");
    simulated::Window& shell_ = terminal_.openWindow("Shell");
    simulated::Window& logs_ = terminal_.openWindow("Logs");
};

using WindowMinimizerWithoutTrust = WindowMinimizerFailures;

TEST_F(WindowMinimizerWithoutTrust, LetsTheSystemAskAndMinimizesNothing) {
    desktop().accessibility.isTrusted = false;
    WindowMinimizer::minimizeAllWindows();
    EXPECT_EQ(desktop().accessibility.promptsShown(), 1);
    EXPECT_FALSE(inbox_.isMinimized);
    EXPECT_THAT(desktop().calls.all(),
                ElementsAre("isProcessTrusted()", "isProcessTrustedWithOptions(prompt)"));
}

TEST_F(WindowMinimizerWithoutTrust, AsksAgainAtEachRequest) {
    desktop().accessibility.isTrusted = false;
    WindowMinimizer::minimizeAllWindows();
    WindowMinimizer::minimizeAllWindows();
    EXPECT_EQ(desktop().accessibility.promptsShown(), 2);
}

TEST_F(WindowMinimizerWithoutTrust, MinimizesNothingEvenIfTrustIsGivenWhileTheSystemAsks) {
    desktop().accessibility.isTrusted = false;
    desktop().calls.during("isProcessTrustedWithOptions(prompt)",
                           [] { desktop().accessibility.isTrusted = true; });
    WindowMinimizer::minimizeAllWindows();
    EXPECT_FALSE(inbox_.isMinimized);
    WindowMinimizer::minimizeAllWindows();
    EXPECT_TRUE(inbox_.isMinimized);
}

TEST_F(WindowMinimizerFailures, ADesktopWithoutAListOfApplicationsIsLeftAsItIs) {
    desktop().workspace.hasList = false;
    WindowMinimizer::minimizeAllWindows();
    EXPECT_FALSE(inbox_.isMinimized);
    EXPECT_THAT(desktop().calls.all(), ElementsAre("isProcessTrusted()", "runningApplications()"));
}

TEST_F(WindowMinimizerFailures, AnApplicationThatCannotBeReadIsPassedOver) {
    for (const auto error :
         {AXError::failure, AXError::invalidUIElement, AXError::cannotComplete,
          AXError::attributeUnsupported, AXError::apiDisabled, AXError::noValue, AXError{1}}) {
        mail_.readResult = error;
        shell_.isMinimized = logs_.isMinimized = false;
        WindowMinimizer::minimizeAllWindows();
        EXPECT_FALSE(inbox_.isMinimized) << static_cast<int>(error);
        EXPECT_TRUE(isShellMinimized()) << static_cast<int>(error);
    }
}

TEST_F(WindowMinimizerFailures, AnApplicationThatGivesNoValueIsPassedOver) {
    mail_.readValue = std::monostate{};
    WindowMinimizer::minimizeAllWindows();
    EXPECT_FALSE(inbox_.isMinimized);
    EXPECT_TRUE(isShellMinimized());
}

TEST_F(WindowMinimizerFailures, AnApplicationThatGivesSomethingElseThanAListIsPassedOver) {
    mail_.readValue = platform::OtherValue{};
    WindowMinimizer::minimizeAllWindows();
    EXPECT_FALSE(inbox_.isMinimized);
    EXPECT_TRUE(isShellMinimized());
}

TEST_F(WindowMinimizerFailures, AnApplicationWithoutWindowsIsPassedOver) {
    inbox_.close();
    draft_.close();
    WindowMinimizer::minimizeAllWindows();
    EXPECT_TRUE(isShellMinimized());
}

TEST_F(WindowMinimizerFailures, AWindowThatFailsDoesNotKeepTheNextFromBeingAsked) {
    inbox_.writeResult = AXError::cannotComplete;
    WindowMinimizer::minimizeAllWindows();
    EXPECT_FALSE(inbox_.isMinimized);
    EXPECT_TRUE(draft_.isMinimized);
    EXPECT_TRUE(isShellMinimized());
}

TEST_F(WindowMinimizerFailures, AWindowThatRefusesStaysAndTheOthersGo) {
    inbox_.refusesToMinimize = true;
    WindowMinimizer::minimizeAllWindows();
    EXPECT_FALSE(inbox_.isMinimized);
    EXPECT_TRUE(draft_.isMinimized);
    EXPECT_TRUE(isShellMinimized());
}

TEST_F(WindowMinimizerFailures, ARefusedWindowIsAskedOnce) {
    inbox_.writeResult = AXError::failure;
    WindowMinimizer::minimizeAllWindows();
    EXPECT_THAT(desktop().calls.of({"setAttributeValue"}),
                ElementsAre("setAttributeValue(Inbox, AXMinimized, true)",
                            "setAttributeValue(Draft, AXMinimized, true)",
                            "setAttributeValue(Shell, AXMinimized, true)",
                            "setAttributeValue(Logs, AXMinimized, true)"));
}

TEST_F(WindowMinimizerFailures, AnApplicationThatHasEndedBeforeItsTurnInTheFilterIsNoCandidate) {
    desktop().calls.during("activationPolicy(Mail)", [&] { mail_.quit(); });
    WindowMinimizer::minimizeAllWindows();
    EXPECT_THAT(desktop().calls.of({"createApplication"}),
                ElementsAre("createApplication(Terminal)"));
    EXPECT_TRUE(isShellMinimized());
}

TEST_F(WindowMinimizerFailures, AnApplicationThatEndsDuringThePassIsStillVisited) {
    desktop().calls.during("createApplication(Mail)", [&] { terminal_.quit(); });
    WindowMinimizer::minimizeAllWindows();
    EXPECT_TRUE(inbox_.isMinimized);
    EXPECT_THAT(desktop().calls.of({"createApplication", "copyAttributeValue"}),
                ElementsAre("createApplication(Mail)", "copyAttributeValue(Mail, AXWindows)",
                            "createApplication(Terminal)",
                            "copyAttributeValue(Terminal, AXWindows)"));
}

TEST_F(WindowMinimizerFailures,
       AnApplicationThatEndsWhileItsWindowsAreAskedChangesNothingForOthers) {
    desktop().calls.during("setAttributeValue(Inbox, AXMinimized, true)", [&] { mail_.quit(); });
    WindowMinimizer::minimizeAllWindows();
    EXPECT_FALSE(inbox_.isMinimized);
    EXPECT_TRUE(isShellMinimized());
}

TEST_F(WindowMinimizerFailures, AWindowThatVanishesDuringThePassIsPassedOver) {
    auto& last = mail_.openWindow("Last");
    desktop().calls.during("setAttributeValue(Inbox, AXMinimized, true)", [&] { draft_.close(); });
    WindowMinimizer::minimizeAllWindows();
    EXPECT_TRUE(inbox_.isMinimized);
    EXPECT_FALSE(draft_.isMinimized);
    EXPECT_TRUE(last.isMinimized);
}

TEST_F(WindowMinimizerFailures, WhatOpensDuringThePassIsLeftForTheNext) {
    desktop().calls.during("setAttributeValue(Inbox, AXMinimized, true)", [&] {
        mail_.openWindow("Late window");
        desktop().workspace.launch("Late application").openWindow("Its window");
    });
    WindowMinimizer::minimizeAllWindows();
    EXPECT_FALSE(mail_.windows().back()->isMinimized);
    WindowMinimizer::minimizeAllWindows();
    EXPECT_TRUE(mail_.windows().back()->isMinimized);
}

TEST_F(WindowMinimizerFailures, TrustThatIsLostDuringThePassIsNotAskedForAgain) {
    desktop().calls.during("runningApplications()", [&] {
        desktop().accessibility.isTrusted = false;
        mail_.readResult = AXError::apiDisabled;
    });
    WindowMinimizer::minimizeAllWindows();
    EXPECT_THAT(desktop().calls.of({"isProcessTrusted", "isProcessTrustedWithOptions"}),
                ElementsAre("isProcessTrusted()"));
    EXPECT_TRUE(isShellMinimized());
}

TEST_F(WindowMinimizerFailures, AnApplicationThatDoesNotAnswerHoldsThePassUpAndIsPassedOver) {
    mail_.answersAfter = 6s;
    mail_.readResult = AXError::cannotComplete;
    WindowMinimizer::minimizeAllWindows();
    EXPECT_EQ(desktop().clock.uptime(), 6s);
    EXPECT_TRUE(isShellMinimized());
}

} // namespace
