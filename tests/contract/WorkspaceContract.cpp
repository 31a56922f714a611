#include "contract/World.h"
#include "platform/Workspace.h"

#include <algorithm>
#include <unistd.h>

namespace {

using platform::ActivationPolicy;
using platform::RunningApplication;

std::vector<RunningApplication> snapshot() {
    return platform::Workspace::shared().runningApplications();
}

std::optional<RunningApplication> find(const std::vector<RunningApplication>& applications,
                                       platform::ProcessIdentifier pid) {
    const auto found = std::ranges::find(applications, pid, &RunningApplication::processIdentifier);
    return found == applications.end() ? std::nullopt : std::optional(*found);
}

std::optional<ActivationPolicy> policyOf(platform::ProcessIdentifier pid) {
    const auto application = find(snapshot(), pid);
    return application ? std::optional(application->activationPolicy()) : std::nullopt;
}

using WorkspaceContract = contract::ProgramTest;

TEST_F(WorkspaceContract, ListsAProgramWithAnOrdinaryWindowAsRegular) {
    const auto mail = world_->start(ActivationPolicy::regular, {"Inbox"});
    EXPECT_EQ(policyOf(mail), ActivationPolicy::regular);
}

TEST_F(WorkspaceContract, ListsAProgramOnceHoweverManyWindowsItHas) {
    const auto mail = world_->start(ActivationPolicy::regular, {"Inbox", "Draft", "Sent"});
    EXPECT_EQ(std::ranges::count(snapshot(), mail, &RunningApplication::processIdentifier), 1);
}

TEST_F(WorkspaceContract, ListsAPanelAsAccessory) {
    const auto panel = world_->start(ActivationPolicy::accessory, {"Panel"});
    EXPECT_EQ(policyOf(panel), ActivationPolicy::accessory);
}

TEST_F(WorkspaceContract, ListsThisProgramWithThePolicyThatItChose) {
    application_.setActivationPolicy(ActivationPolicy::regular);
    EXPECT_TRUE(
        world_->turnUntil([] { return policyOf(::getpid()) == ActivationPolicy::regular; }));
    application_.setActivationPolicy(ActivationPolicy::accessory);
    EXPECT_TRUE(
        world_->turnUntil([] { return policyOf(::getpid()) != ActivationPolicy::regular; }));
}

TEST_F(WorkspaceContract, ASnapshotIsNotChangedByWhatHappensLater) {
    const auto mail = world_->start(ActivationPolicy::regular, {"Inbox"});
    const auto before = snapshot();
    const auto count = before.size();
    const auto terminal = world_->start(ActivationPolicy::regular, {"Shell"});
    world_->quit(mail);
    EXPECT_EQ(before.size(), count);
    EXPECT_TRUE(find(before, mail));
    EXPECT_FALSE(find(before, terminal));
}

TEST_F(WorkspaceContract, AnApplicationOfASnapshotKnowsWhetherItHasEnded) {
    const auto mail = world_->start(ActivationPolicy::regular, {"Inbox"});
    const auto application = find(snapshot(), mail);
    ASSERT_TRUE(application);
    EXPECT_FALSE(application->isTerminated());
    world_->quit(mail);
    EXPECT_TRUE(world_->turnUntil([&] { return application->isTerminated(); }));
}

TEST_F(WorkspaceContract, ANewSnapshotLeavesOutWhoHasEnded) {
    const auto mail = world_->start(ActivationPolicy::regular, {"Inbox"});
    world_->quit(mail);
    EXPECT_TRUE(world_->turnUntil([&] { return !find(snapshot(), mail); }));
}

TEST_F(WorkspaceContract, ACopyOutlivesTheSnapshot) {
    const auto mail = world_->start(ActivationPolicy::regular, {"Inbox"});
    auto applications = snapshot();
    const auto copy = find(applications, mail);
    applications.clear();
    ASSERT_TRUE(copy);
    EXPECT_EQ(copy->processIdentifier(), mail);
}

} // namespace
