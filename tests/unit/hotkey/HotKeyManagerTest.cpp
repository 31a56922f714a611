#include "hotkey/HotKeyManager.h"

#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

#include <type_traits>

namespace {

using simulated::desktop;
using testing::ElementsAre;
using testing::IsEmpty;
using Registration = simulated::HotKeys::Registration;

static_assert(!std::is_default_constructible_v<HotKeyManager>);
static_assert(!std::is_copy_constructible_v<HotKeyManager>);

constexpr KeyCombo optionCommandM{46, optionKey | cmdKey};
constexpr KeyCombo commandQ{12, cmdKey};
constexpr platform::EventHotKeyID identity{0x514C4252, 1}; // 'QLBR'

HotKeyManager& manager() {
    return HotKeyManager::shared();
}

std::vector<std::string> registrationCalls() {
    return desktop().calls.of({"registerEventHotKey", "unregisterEventHotKey"});
}

TEST(HotKeyManager, IsMadeByTheFirstUseAndIsOne) {
    EXPECT_THAT(desktop().calls.all(), IsEmpty());
    auto* const first = &manager();
    EXPECT_EQ(&manager(), first);
}

TEST(HotKeyManager, InstallsItsHandlerWhenItIsMadeAndRegistersNothing) {
    manager();
    EXPECT_THAT(desktop().calls.all(), ElementsAre("installHotKeyPressedHandler()"));
    EXPECT_FALSE(manager().onHotKey);
}

TEST(HotKeyManager, RegistersTheCombinationUnderItsIdentity) {
    manager().registerHotKey(optionCommandM);
    EXPECT_THAT(registrationCalls(), ElementsAre("registerEventHotKey(46, 0x900, QLBR, 1)"));
    EXPECT_THAT(desktop().hotKeys.registrations(),
                ElementsAre(Registration{{46, 0x900}, identity}));
}

TEST(HotKeyManager, RegistersAKeyWithoutModifiersAsItIs) {
    manager().registerHotKey({0, 0});
    EXPECT_THAT(registrationCalls(), ElementsAre("registerEventHotKey(0, 0x0, QLBR, 1)"));
}

TEST(HotKeyManager, PassesEveryBitOfTheCombinationOn) {
    manager().registerHotKey({0xFFFFFFFF, 0xFFFFFFFF});
    EXPECT_THAT(registrationCalls(),
                ElementsAre("registerEventHotKey(4294967295, 0xffffffff, QLBR, 1)"));
}

TEST(HotKeyManager, RegisteringTwiceLeavesOneRegistration) {
    manager().registerHotKey(optionCommandM);
    manager().registerHotKey(optionCommandM);
    EXPECT_EQ(desktop().hotKeys.registrations().size(), 1U);
}

TEST(HotKeyManager, RemovesTheFirstCombinationBeforeItRegistersTheSecond) {
    manager().registerHotKey(optionCommandM);
    manager().registerHotKey(commandQ);
    EXPECT_THAT(registrationCalls(), ElementsAre("registerEventHotKey(46, 0x900, QLBR, 1)",
                                                 "unregisterEventHotKey(46, 0x900)",
                                                 "registerEventHotKey(12, 0x100, QLBR, 1)"));
    EXPECT_THAT(desktop().hotKeys.registrations(),
                ElementsAre(Registration{{12, 0x100}, identity}));
}

TEST(HotKeyManager, UnregisteringRemovesTheRegistrationOnce) {
    manager().registerHotKey(optionCommandM);
    manager().unregisterHotKey();
    manager().unregisterHotKey();
    EXPECT_THAT(registrationCalls(), ElementsAre("registerEventHotKey(46, 0x900, QLBR, 1)",
                                                 "unregisterEventHotKey(46, 0x900)"));
    EXPECT_THAT(desktop().hotKeys.registrations(), IsEmpty());
}

TEST(HotKeyManager, UnregisteringWithNothingRegisteredDoesNothing) {
    manager().unregisterHotKey();
    EXPECT_THAT(registrationCalls(), IsEmpty());
}

TEST(HotKeyManager, CanRegisterAgainAfterUnregistering) {
    manager().registerHotKey(optionCommandM);
    manager().unregisterHotKey();
    manager().registerHotKey(optionCommandM);
    EXPECT_EQ(desktop().hotKeys.registrations().size(), 1U);
}

TEST(HotKeyManager, ARefusedCombinationLeavesNothingToUnregister) {
    desktop().hotKeys.holdElsewhere({46, 0x900});
    manager().registerHotKey(optionCommandM);
    manager().unregisterHotKey();
    EXPECT_THAT(registrationCalls(), ElementsAre("registerEventHotKey(46, 0x900, QLBR, 1)"));
}

TEST(HotKeyManager, ARefusedCombinationLeavesNothingToRemoveBeforeTheNext) {
    desktop().hotKeys.registerStatus = -50;
    manager().registerHotKey(optionCommandM);
    desktop().hotKeys.registerStatus = platform::noErr;
    manager().registerHotKey(commandQ);
    EXPECT_THAT(registrationCalls(), ElementsAre("registerEventHotKey(46, 0x900, QLBR, 1)",
                                                 "registerEventHotKey(12, 0x100, QLBR, 1)"));
}

TEST(HotKeyManager, ARefusedCombinationLeavesNoneOfAnEarlierOne) {
    desktop().hotKeys.holdElsewhere({12, 0x100});
    manager().registerHotKey(optionCommandM);
    manager().registerHotKey(commandQ);
    EXPECT_THAT(desktop().hotKeys.registrations(), IsEmpty());
    manager().unregisterHotKey();
    EXPECT_EQ(registrationCalls().back(), "registerEventHotKey(12, 0x100, QLBR, 1)");
}

TEST(HotKeyManager, ARegistrationThatCannotBeRemovedIsForgottenAllTheSame) {
    manager().registerHotKey(optionCommandM);
    desktop().hotKeys.unregisterStatus = -50;
    manager().unregisterHotKey();
    manager().unregisterHotKey();
    EXPECT_EQ(desktop().calls.of({"unregisterEventHotKey"}).size(), 1U);
}

TEST(HotKeyManager, RegistersEvenWhereItsHandlerCouldNotBeInstalled) {
    desktop().hotKeys.installStatus = -50;
    manager().registerHotKey(optionCommandM);
    EXPECT_EQ(desktop().hotKeys.registrations().size(), 1U);
}

TEST(HotKeyManager, KnowsNothingOfSettings) {
    manager().registerHotKey(optionCommandM);
    manager().unregisterHotKey();
    EXPECT_THAT(desktop().calls.all(), ElementsAre("installHotKeyPressedHandler()",
                                                   "registerEventHotKey(46, 0x900, QLBR, 1)",
                                                   "unregisterEventHotKey(46, 0x900)"));
}

} // namespace
