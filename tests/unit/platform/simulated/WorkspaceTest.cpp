#include "platform/Workspace.h"
#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

namespace {

using platform::ActivationPolicy;
using simulated::desktop;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

std::vector<platform::RunningApplication> snapshot() {
    return platform::Workspace::shared().runningApplications();
}

TEST(SimulatedWorkspace, ListsApplicationsInTheOrderOfTheirStart) {
    const auto& mail = desktop().workspace.launch("Mail");
    const auto& panel = desktop().workspace.launch("Panel", ActivationPolicy::accessory);
    const auto applications = snapshot();
    ASSERT_THAT(applications, SizeIs(2));
    EXPECT_EQ(applications[0].processIdentifier(), mail.processIdentifier);
    EXPECT_EQ(applications[0].activationPolicy(), ActivationPolicy::regular);
    EXPECT_EQ(applications[1].processIdentifier(), panel.processIdentifier);
    EXPECT_EQ(applications[1].activationPolicy(), ActivationPolicy::accessory);
}

TEST(SimulatedWorkspace, ASnapshotStaysAsItWasTakenButKnowsWhoHasEnded) {
    auto& mail = desktop().workspace.launch("Mail");
    const auto applications = snapshot();
    EXPECT_FALSE(applications[0].isTerminated());
    mail.quit();
    desktop().workspace.launch("Terminal");
    EXPECT_THAT(applications, SizeIs(1));
    EXPECT_TRUE(applications[0].isTerminated());
    EXPECT_THAT(snapshot(), SizeIs(1));
}

TEST(SimulatedWorkspace, WithoutAListNamesNobody) {
    desktop().workspace.launch("Mail");
    desktop().workspace.hasList = false;
    EXPECT_THAT(snapshot(), IsEmpty());
}

TEST(SimulatedWorkspace, NoTwoApplicationsHaveTheSameIdentifier) {
    auto& first = desktop().workspace.launch("Mail");
    first.quit();
    EXPECT_NE(desktop().workspace.launch("Mail").processIdentifier, first.processIdentifier);
}

TEST(SimulatedWorkspace, AnApplicationIsFoundByItsIdentifierAlsoAfterItsEnd) {
    auto& mail = desktop().workspace.launch("Mail");
    const auto& terminal = desktop().workspace.launch("Terminal");
    mail.quit();
    EXPECT_EQ(desktop().workspace.find(mail.processIdentifier), &mail);
    EXPECT_EQ(desktop().workspace.find(terminal.processIdentifier), &terminal);
    EXPECT_EQ(desktop().workspace.find(1), nullptr);
}

TEST(SimulatedWorkspace, CallsNameTheApplication) {
    desktop().workspace.launch("Mail");
    const auto applications = snapshot();
    (void)applications[0].activationPolicy();
    (void)applications[0].isTerminated();
    (void)applications[0].processIdentifier();
    EXPECT_THAT(desktop().calls.all(),
                ElementsAre("runningApplications()", "activationPolicy(Mail)", "isTerminated(Mail)",
                            "processIdentifier(Mail)"));
}

TEST(SimulatedWindow, IsVisibleUntilItIsMinimizedHiddenOrClosed) {
    auto& mail = desktop().workspace.launch("Mail");
    auto& inbox = mail.openWindow("Inbox");
    EXPECT_TRUE(inbox.isVisible());
    inbox.isMinimized = true;
    EXPECT_FALSE(inbox.isVisible());
    inbox.isMinimized = false;
    mail.isHidden = true;
    EXPECT_FALSE(inbox.isVisible());
    mail.isHidden = false;
    inbox.close();
    EXPECT_FALSE(inbox.isVisible());
    EXPECT_FALSE(inbox.isOpen());
}

TEST(SimulatedWindow, ThatHasClosedIsNoLongerAmongTheWindows) {
    auto& mail = desktop().workspace.launch("Mail");
    auto& inbox = mail.openWindow("Inbox");
    auto& draft = mail.openWindow("Draft");
    EXPECT_THAT(mail.windows(), ElementsAre(&inbox, &draft));
    inbox.close();
    EXPECT_THAT(mail.windows(), ElementsAre(&draft));
}

TEST(SimulatedWindow, ClosesWithItsApplication) {
    auto& mail = desktop().workspace.launch("Mail");
    const auto& inbox = mail.openWindow("Inbox");
    mail.openWindow("Draft").close();
    mail.quit();
    EXPECT_FALSE(inbox.isOpen());
    EXPECT_THAT(mail.windows(), IsEmpty());
}

TEST(SimulatedWorkspaceDeathTest, QuittingOrClosingTwiceIsFatal) {
    auto& mail = desktop().workspace.launch("Mail");
    auto& inbox = mail.openWindow("Inbox");
    inbox.close();
    EXPECT_DEATH(inbox.close(), "the window \"Inbox\" is closed twice");
    mail.quit();
    EXPECT_DEATH(mail.quit(), "Mail quits twice");
    EXPECT_DEATH(mail.openWindow("Late"), "Mail opens a window after it has ended");
}

} // namespace
