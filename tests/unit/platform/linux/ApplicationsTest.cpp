#include "platform/linux/windowmanager/Applications.h"

#include <gmock/gmock.h>

namespace {

using platform::ActivationPolicy;
using platform::linux_host::ApplicationKind;
using platform::linux_host::ApplicationRecord;
using platform::linux_host::applicationsOf;
using platform::linux_host::ClaimedProcess;
using platform::linux_host::Client;
using platform::linux_host::isWindowOfApplication;
using platform::linux_host::ManagedWindow;
using platform::linux_host::mayBeMinimized;
using platform::linux_host::OwnProcess;
using platform::linux_host::WindowType;
using testing::ElementsAre;

constexpr std::uint32_t ownClient = 0x200000;
constexpr std::uint32_t mail = 0x400000;
constexpr std::uint32_t terminal = 0x600000;
constexpr std::uint32_t browser = 0x800000;
constexpr int ownPid = 10;

const OwnProcess own{.processIdentifier = ownPid,
                     .client = ownClient,
                     .machine = "here",
                     .activationPolicy = ActivationPolicy::accessory};

ManagedWindow window(std::uint32_t client, std::uint32_t number = 1,
                     WindowType type = WindowType::normal) {
    return {.id = client + number, .client = client, .type = type};
}

Client local(std::uint32_t id, int pid) {
    return {.id = id, .localProcess = pid, .claimed = {}};
}

Client claiming(std::uint32_t id, const std::string& machine, std::uint32_t pid) {
    return {.id = id,
            .localProcess = {},
            .claimed = ClaimedProcess{.machine = machine, .processIdentifier = pid}};
}

Client unknown(std::uint32_t id) {
    return {.id = id, .localProcess = {}, .claimed = {}};
}

std::vector<int> identifiersOf(const std::vector<ApplicationRecord>& applications) {
    std::vector<int> identifiers;
    for (const ApplicationRecord& application : applications) {
        identifiers.push_back(application.processIdentifier);
    }
    return identifiers;
}

std::vector<std::uint32_t> windowsOf(const ApplicationRecord& application) {
    std::vector<std::uint32_t> ids;
    for (const ManagedWindow& each : application.windows) {
        ids.push_back(each.id);
    }
    return ids;
}

ActivationPolicy policyWith(const std::vector<ManagedWindow>& windows) {
    return applicationsOf(windows, {local(mail, 20)}, own).front().activationPolicy;
}

TEST(Applications, ThisProcessIsThereEvenOnAnEmptyDesktop) {
    const auto applications = applicationsOf({}, {}, own);
    ASSERT_EQ(applications.size(), 1U);
    EXPECT_EQ(applications[0].processIdentifier, ownPid);
    EXPECT_EQ(applications[0].kind, ApplicationKind::thisProcess);
    EXPECT_TRUE(applications[0].windows.empty());
}

TEST(Applications, ComeInTheOrderOfTheirLowestWindow) {
    const auto applications = applicationsOf({window(terminal), window(mail), window(terminal, 2)},
                                             {local(mail, 20), local(terminal, 30)}, own);
    EXPECT_THAT(identifiersOf(applications), ElementsAre(30, 20, ownPid));
    EXPECT_THAT(windowsOf(applications[0]), ElementsAre(terminal + 1, terminal + 2));
}

TEST(Applications, ClientsOfOneProcessAreOneApplication) {
    const auto applications =
        applicationsOf({window(mail), window(terminal), window(browser)},
                       {local(mail, 20), local(terminal, 30), local(browser, 20)}, own);
    EXPECT_THAT(identifiersOf(applications), ElementsAre(20, 30, ownPid));
    EXPECT_THAT(windowsOf(applications[0]), ElementsAre(mail + 1, browser + 1));
}

// Sandboxed programs count their processes in a name space of their own and often claim to be 2.
TEST(Applications, TheServersWordCountsMoreThanTheWindows) {
    auto sandboxed = local(mail, 20);
    sandboxed.claimed = ClaimedProcess{.machine = "here", .processIdentifier = 2};
    auto another = local(terminal, 30);
    another.claimed = sandboxed.claimed;
    const auto applications =
        applicationsOf({window(mail), window(terminal)}, {sandboxed, another}, own);
    EXPECT_THAT(identifiersOf(applications), ElementsAre(20, 30, ownPid));
}

TEST(Applications, WithoutTheServersWordALocalClaimIsBelieved) {
    const auto applications = applicationsOf({window(mail)}, {claiming(mail, "here", 20)}, own);
    EXPECT_EQ(applications[0].processIdentifier, 20);
    EXPECT_EQ(applications[0].kind, ApplicationKind::localProcess);
}

TEST(Applications, NobodyIsThisProcessByHisOwnWord) {
    const auto applications = applicationsOf({window(mail)}, {claiming(mail, "here", ownPid)}, own);
    ASSERT_EQ(applications.size(), 2U);
    EXPECT_EQ(applications[0].kind, ApplicationKind::clients);
    EXPECT_TRUE(applications[1].windows.empty());
}

TEST(Applications, WindowsOfThisProgramsClientAreItsOwnWhateverTheyClaim) {
    const auto applications =
        applicationsOf({window(ownClient)}, {claiming(ownClient, "elsewhere", 99)}, own);
    ASSERT_EQ(applications.size(), 1U);
    EXPECT_EQ(applications[0].kind, ApplicationKind::thisProcess);
    EXPECT_THAT(windowsOf(applications[0]), ElementsAre(ownClient + 1));
}

TEST(Applications, AnotherClientOfThisProcessIsItsOwnToo) {
    const auto applications = applicationsOf({window(mail)}, {local(mail, ownPid)}, own);
    ASSERT_EQ(applications.size(), 1U);
    EXPECT_EQ(applications[0].kind, ApplicationKind::thisProcess);
}

TEST(Applications, RemoteProcessesAreToldApartByMachineAndNumber) {
    const auto applications =
        applicationsOf({window(mail), window(terminal), window(browser)},
                       {claiming(mail, "there", 20), claiming(terminal, "far", 20),
                        claiming(browser, "there", 20)},
                       own);
    ASSERT_EQ(applications.size(), 3U);
    EXPECT_THAT(windowsOf(applications[0]), ElementsAre(mail + 1, browser + 1));
    EXPECT_EQ(applications[0].kind, ApplicationKind::clients);
}

TEST(Applications, WhereProcessNumbersAreNotSharedNoClaimIsLocal) {
    OwnProcess contained = own;
    contained.machine.clear();
    const auto applications =
        applicationsOf({window(mail), window(terminal)},
                       {claiming(mail, "", 20), claiming(terminal, "here", 20)}, contained);
    EXPECT_EQ(applications[0].kind, ApplicationKind::clients);
    EXPECT_EQ(applications[1].kind, ApplicationKind::clients);
}

TEST(Applications, AClientOfWhichNothingIsKnownIsAnApplicationOfItsOwn) {
    const auto applications =
        applicationsOf({window(mail), window(terminal), window(mail, 2)}, {unknown(mail)}, own);
    ASSERT_EQ(applications.size(), 3U);
    EXPECT_THAT(windowsOf(applications[0]), ElementsAre(mail + 1, mail + 2));
}

TEST(Applications, WithoutAProcessTheNumberIsNegativeAndTheSameInEveryOrder) {
    const std::vector<Client> clients{claiming(mail, "there", 20), claiming(browser, "there", 20)};
    const auto before = applicationsOf({window(mail), window(browser)}, clients, own);
    const auto after = applicationsOf({window(browser), window(mail)}, clients, own);
    EXPECT_LT(before[0].processIdentifier, 0);
    EXPECT_EQ(before[0].processIdentifier, after[0].processIdentifier);
    const auto largest = applicationsOf({window(0x1FE00000)}, {unknown(0x1FE00000)}, own);
    EXPECT_LT(largest[0].processIdentifier, 0);
}

TEST(Applications, AnOrdinaryWindowMakesAnApplicationRegular) {
    EXPECT_EQ(policyWith({window(mail, 1, WindowType::none)}), ActivationPolicy::regular);
    EXPECT_EQ(policyWith({window(mail, 1, WindowType::normal)}), ActivationPolicy::regular);
    EXPECT_EQ(policyWith({window(mail, 1, WindowType::dialog)}), ActivationPolicy::regular);
    EXPECT_EQ(policyWith({window(mail, 1, WindowType::dock), window(mail, 2)}),
              ActivationPolicy::regular);
}

TEST(Applications, OtherKindsOfWindowsAloneMakeItAccessory) {
    for (const auto type :
         {WindowType::utility, WindowType::dock, WindowType::desktop, WindowType::splash,
          WindowType::toolbar, WindowType::menu, WindowType::notification, WindowType::other}) {
        EXPECT_EQ(policyWith({window(mail, 1, type)}), ActivationPolicy::accessory);
    }
}

TEST(Applications, AWindowThatStaysOutOfTheTaskBarDoesNotMakeItRegular) {
    ManagedWindow applet = window(mail);
    applet.skipsTaskbar = true;
    EXPECT_EQ(policyWith({applet}), ActivationPolicy::accessory);
}

TEST(Applications, ThisProcessHasThePolicyThatItChoseWhateverItsWindowsAre) {
    OwnProcess regular = own;
    regular.activationPolicy = ActivationPolicy::regular;
    const std::vector<ManagedWindow> dock{window(ownClient, 1, WindowType::dock)};
    EXPECT_EQ(applicationsOf(dock, {}, regular)[0].activationPolicy, ActivationPolicy::regular);
    EXPECT_EQ(applicationsOf({window(ownClient)}, {}, own)[0].activationPolicy,
              ActivationPolicy::accessory);
}

TEST(Applications, PanelsAndTheDesktopAreNotWindowsOfTheirApplication) {
    EXPECT_FALSE(isWindowOfApplication(window(mail, 1, WindowType::dock)));
    EXPECT_FALSE(isWindowOfApplication(window(mail, 1, WindowType::desktop)));
    EXPECT_TRUE(isWindowOfApplication(window(mail, 1, WindowType::none)));
    EXPECT_TRUE(isWindowOfApplication(window(mail, 1, WindowType::utility)));
    EXPECT_TRUE(isWindowOfApplication(window(mail, 1, WindowType::splash)));
}

TEST(Applications, WhatTheManagerForbidsIsNotMinimized) {
    ManagedWindow fixed = window(mail);
    EXPECT_TRUE(mayBeMinimized(fixed));
    fixed.forbidsMinimizing = true;
    EXPECT_FALSE(mayBeMinimized(fixed));
}

TEST(Applications, WindowsThatTheTaskBarWouldNotBringBackAreNotMinimized) {
    for (const auto type :
         {WindowType::splash, WindowType::toolbar, WindowType::menu, WindowType::notification}) {
        EXPECT_FALSE(mayBeMinimized(window(mail, 1, type)));
    }
    for (const auto type :
         {WindowType::none, WindowType::normal, WindowType::dialog, WindowType::utility}) {
        EXPECT_TRUE(mayBeMinimized(window(mail, 1, type)));
    }
}

} // namespace
