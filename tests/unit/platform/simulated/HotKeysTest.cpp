#include "platform/HotKeys.h"
#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

namespace {

using platform::EventHotKeyID;
using platform::noErr;
using platform::OSStatus;
using simulated::desktop;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint32_t signature = 0x514C4252; // 'QLBR'
constexpr EventHotKeyID identity{signature, 1};
constexpr simulated::KeyCombination optionCommandM{46, 0x900};

struct Received {
    std::vector<EventHotKeyID> identities;
    std::vector<OSStatus> statuses;
    int withoutUserData = 0;
};
Received received;

OSStatus receive(const platform::HotKeyEvent& event, void* userData) {
    received.withoutUserData += userData == nullptr ? 1 : 0;
    EventHotKeyID pressed{7, 7};
    received.statuses.push_back(event.directObject(pressed));
    received.identities.push_back(pressed);
    return 42;
}

platform::InstalledHandler install() {
    return platform::installHotKeyPressedHandler(&receive, &received);
}

TEST(SimulatedHotKeys, APressOfARegisteredCombinationReachesTheHandler) {
    EXPECT_TRUE(install().handler);
    const auto registered = platform::registerEventHotKey(46, 0x900, identity);
    EXPECT_EQ(registered.status, noErr);
    EXPECT_TRUE(registered.hotKey);
    desktop().hotKeys.press(optionCommandM);
    EXPECT_THAT(received.identities, ElementsAre(identity));
    EXPECT_THAT(received.statuses, ElementsAre(noErr));
    EXPECT_EQ(received.withoutUserData, 0);
    EXPECT_THAT(desktop().hotKeys.answers(), ElementsAre(42));
}

TEST(SimulatedHotKeys, APressOfAnythingElseDoesNot) {
    install();
    platform::registerEventHotKey(46, 0x900, identity);
    desktop().hotKeys.press({46, 0x100});
    desktop().hotKeys.press({46, 0xB00});
    desktop().hotKeys.press({45, 0x900});
    EXPECT_THAT(received.identities, IsEmpty());
}

TEST(SimulatedHotKeys, AKeyThatRepeatsWhileItIsHeldIsOnePress) {
    install();
    platform::registerEventHotKey(46, 0x900, identity);
    desktop().hotKeys.keyDown(optionCommandM);
    desktop().hotKeys.keyDown(optionCommandM);
    EXPECT_THAT(received.identities, ElementsAre(identity));
    desktop().hotKeys.keyUp();
    desktop().hotKeys.keyDown(optionCommandM);
    EXPECT_THAT(received.identities, ElementsAre(identity, identity));
}

TEST(SimulatedHotKeys, APressWithoutAHandlerGoesNowhere) {
    platform::registerEventHotKey(46, 0x900, identity);
    desktop().hotKeys.press(optionCommandM);
    EXPECT_THAT(desktop().hotKeys.answers(), IsEmpty());
}

TEST(SimulatedHotKeys, AnUnregisteredCombinationIsFreeAgain) {
    install();
    const auto registered = platform::registerEventHotKey(46, 0x900, identity);
    EXPECT_EQ(platform::unregisterEventHotKey(*registered.hotKey), noErr);
    EXPECT_THAT(desktop().hotKeys.registrations(), IsEmpty());
    desktop().hotKeys.press(optionCommandM);
    EXPECT_THAT(received.identities, IsEmpty());
    EXPECT_TRUE(desktop().hotKeys.holdElsewhere(optionCommandM));
}

TEST(SimulatedHotKeys, ACombinationHasOneHolder) {
    EXPECT_TRUE(desktop().hotKeys.holdElsewhere(optionCommandM));
    EXPECT_FALSE(desktop().hotKeys.holdElsewhere(optionCommandM));
    const auto refused = platform::registerEventHotKey(46, 0x900, identity);
    EXPECT_EQ(refused.status, platform::eventHotKeyExistsErr);
    EXPECT_FALSE(refused.hotKey);
    desktop().hotKeys.releaseElsewhere(optionCommandM);
    EXPECT_TRUE(platform::registerEventHotKey(46, 0x900, identity).hotKey);
    EXPECT_FALSE(desktop().hotKeys.holdElsewhere(optionCommandM));
    EXPECT_FALSE(platform::registerEventHotKey(46, 0x900, {signature, 2}).hotKey);
}

TEST(SimulatedHotKeys, ListsWhatIsRegistered) {
    platform::registerEventHotKey(46, 0x900, identity);
    platform::registerEventHotKey(0, 0, {signature, 2});
    using Registration = simulated::HotKeys::Registration;
    EXPECT_THAT(
        desktop().hotKeys.registrations(),
        ElementsAre(Registration{optionCommandM, identity}, Registration{{0, 0}, {signature, 2}}));
}

TEST(SimulatedHotKeys, EveryCallCanBeMadeToFail) {
    desktop().hotKeys.installStatus = -1;
    EXPECT_EQ(install().status, -1);
    EXPECT_FALSE(install().handler);
    desktop().hotKeys.registerStatus = -2;
    const auto refused = platform::registerEventHotKey(46, 0x900, identity);
    EXPECT_EQ(refused.status, -2);
    EXPECT_FALSE(refused.hotKey);
    desktop().hotKeys.registerStatus = noErr;
    const auto registered = platform::registerEventHotKey(46, 0x900, identity);
    desktop().hotKeys.unregisterStatus = -3;
    EXPECT_EQ(platform::unregisterEventHotKey(*registered.hotKey), -3);
    EXPECT_EQ(desktop().hotKeys.registrations().size(), 1U);
    desktop().hotKeys.press(optionCommandM);
    EXPECT_THAT(received.identities, IsEmpty());
}

TEST(SimulatedHotKeys, AnEventCanComeFromNoKey) {
    install();
    desktop().hotKeys.deliver({.identity = {1, 2}});
    EXPECT_THAT(received.identities, ElementsAre(EventHotKeyID{1, 2}));
}

TEST(SimulatedHotKeys, AnEventThatCannotBeReadLeavesTheIdentityAsItWas) {
    install();
    desktop().hotKeys.deliver(
        {.identity = identity, .readStatus = platform::eventParameterNotFoundErr});
    EXPECT_THAT(received.statuses, ElementsAre(platform::eventParameterNotFoundErr));
    EXPECT_THAT(received.identities, ElementsAre(EventHotKeyID{7, 7}));
}

TEST(SimulatedHotKeys, AnEventCanComeWithoutUserData) {
    install();
    desktop().hotKeys.deliver({.identity = identity, .carriesUserData = false});
    EXPECT_EQ(received.withoutUserData, 1);
}

TEST(SimulatedHotKeys, CallsNameTheCombinationAndTheIdentity) {
    install();
    const auto registered = platform::registerEventHotKey(46, 0x900, identity);
    platform::registerEventHotKey(0, 0, {1, 2});
    platform::unregisterEventHotKey(*registered.hotKey);
    desktop().hotKeys.deliver({.identity = identity});
    EXPECT_THAT(desktop().calls.all(),
                ElementsAre("installHotKeyPressedHandler()",
                            "registerEventHotKey(46, 0x900, QLBR, 1)",
                            "registerEventHotKey(0, 0x0, 0x1, 2)",
                            "unregisterEventHotKey(46, 0x900)", "directObject()"));
}

TEST(SimulatedHotKeysDeathTest, UnregisteringWhatIsNotRegisteredIsFatalUnlessTheErrorIsWanted) {
    const auto registered = platform::registerEventHotKey(46, 0x900, identity);
    platform::unregisterEventHotKey(*registered.hotKey);
    EXPECT_DEATH(platform::unregisterEventHotKey(*registered.hotKey),
                 "a hot key is unregistered that is not registered");
    desktop().hotKeys.staleRef = simulated::HotKeys::StaleRef::isAnError;
    EXPECT_EQ(platform::unregisterEventHotKey(*registered.hotKey), platform::eventHotKeyInvalidErr);
}

TEST(SimulatedHotKeysDeathTest, ASecondOrAnEmptyHandlerIsFatal) {
    EXPECT_DEATH(platform::installHotKeyPressedHandler(nullptr, nullptr),
                 "an empty hot-key handler is installed");
    install();
    EXPECT_DEATH(install(), "a second hot-key handler is installed");
}

TEST(SimulatedHotKeysDeathTest, AnEventThatIsReadAfterItsHandlerHasReturnedIsFatal) {
    static std::optional<platform::HotKeyEvent> kept;
    const auto keep = [](const platform::HotKeyEvent& event, void*) -> OSStatus {
        kept = event;
        return noErr;
    };
    platform::installHotKeyPressedHandler(keep, nullptr);
    desktop().hotKeys.deliver({.identity = identity});
    EventHotKeyID pressed;
    EXPECT_DEATH((void)kept->directObject(pressed), "is read after its handler has returned");
}

TEST(SimulatedHotKeysDeathTest, AnotherClientThatGivesBackWhatItDoesNotHoldIsFatal) {
    EXPECT_DEATH(desktop().hotKeys.releaseElsewhere(optionCommandM),
                 "no other client holds 46, 0x900");
}

} // namespace
