#include "hotkey/HotKeyManager.h"

#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

namespace {

using platform::noErr;
using simulated::desktop;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint32_t signature = 0x514C4252; // 'QLBR'
constexpr simulated::KeyCombination optionCommandM{46, 0x900};

/// A manager with a registered hot key, and an action that counts.
class HotKeyPress : public testing::Test {
  protected:
    void SetUp() override {
        manager_.onHotKey = [this] { ++runs_; };
        manager_.registerHotKey({optionCommandM.keyCode, optionCommandM.modifiers});
    }

    static void press() { desktop().hotKeys.press(optionCommandM); }
    static void deliver(platform::EventHotKeyID identity) {
        desktop().hotKeys.deliver({.identity = identity});
    }
    static void turn() { desktop().mainQueue.turnUntilIdle(); }

    HotKeyManager& manager_ = HotKeyManager::shared();
    int runs_ = 0;
};

TEST_F(HotKeyPress, RunsTheActionOnceOnALaterTurnOfTheMainQueue) {
    press();
    EXPECT_EQ(runs_, 0);
    EXPECT_EQ(desktop().mainQueue.waiting(), 1U);
    desktop().mainQueue.turn();
    EXPECT_EQ(runs_, 1);
    turn();
    EXPECT_EQ(runs_, 1);
}

TEST_F(HotKeyPress, ReadsTheIdentityThenPostsTheAction) {
    desktop().calls.clear();
    press();
    EXPECT_THAT(desktop().calls.all(), ElementsAre("directObject()", "dispatchAsyncOnMainQueue()"));
}

TEST_F(HotKeyPress, RunsTheActionEachTime) {
    press();
    press();
    turn();
    press();
    turn();
    EXPECT_EQ(runs_, 3);
}

TEST_F(HotKeyPress, RunsTheActionOnceHoweverLongTheKeyIsHeld) {
    desktop().hotKeys.keyDown(optionCommandM);
    desktop().hotKeys.keyDown(optionCommandM);
    desktop().hotKeys.keyUp();
    turn();
    EXPECT_EQ(runs_, 1);
}

TEST_F(HotKeyPress, IsKnownByItsIdWhateverTheSignature) {
    deliver({0, 1});
    deliver({0xFFFFFFFF, 1});
    turn();
    EXPECT_EQ(runs_, 2);
    EXPECT_THAT(desktop().hotKeys.answers(), ElementsAre(noErr, noErr));
}

TEST_F(HotKeyPress, OfAnotherIdRunsNothingAndCountsAsHandled) {
    for (const std::uint32_t id : {0U, 2U, 0x01000000U, 0x101U, 0xFFFFFFFFU}) {
        deliver({signature, id});
    }
    EXPECT_EQ(desktop().mainQueue.waiting(), 0U);
    EXPECT_THAT(desktop().hotKeys.answers(), ElementsAre(noErr, noErr, noErr, noErr, noErr));
}

TEST_F(HotKeyPress, ThatCannotBeReadRunsNothingAndCountsAsHandled) {
    desktop().hotKeys.deliver(
        {.identity = {signature, 1}, .readStatus = platform::eventParameterNotFoundErr});
    EXPECT_EQ(desktop().mainQueue.waiting(), 0U);
    EXPECT_THAT(desktop().hotKeys.answers(), ElementsAre(noErr));
}

TEST_F(HotKeyPress, WithoutUserDataIsNotEvenReadAndCountsAsHandled) {
    desktop().calls.clear();
    desktop().hotKeys.deliver({.identity = {signature, 1}, .carriesUserData = false});
    EXPECT_THAT(desktop().calls.all(), IsEmpty());
    EXPECT_THAT(desktop().hotKeys.answers(), ElementsAre(noErr));
}

TEST_F(HotKeyPress, WithoutAnActionDoesNothing) {
    manager_.onHotKey = nullptr;
    press();
    turn();
    EXPECT_THAT(desktop().hotKeys.answers(), ElementsAre(noErr));
}

TEST_F(HotKeyPress, RunsTheActionThatIsSetWhenItsTurnComes) {
    std::string ran;
    manager_.onHotKey = nullptr;
    press();
    manager_.onHotKey = [&] { ran += 'a'; };
    turn();
    EXPECT_EQ(ran, "a");
    press();
    manager_.onHotKey = [&] { ran += 'b'; };
    turn();
    EXPECT_EQ(ran, "ab");
}

TEST_F(HotKeyPress, RunsNothingIfTheActionIsTakenAwayBeforeItsTurn) {
    press();
    manager_.onHotKey = nullptr;
    turn();
    EXPECT_EQ(runs_, 0);
}

TEST_F(HotKeyPress, RunsEvenIfTheHotKeyIsUnregisteredBeforeItsTurn) {
    press();
    manager_.unregisterHotKey();
    turn();
    EXPECT_EQ(runs_, 1);
}

TEST_F(HotKeyPress, AnActionMayReplaceItself) {
    const auto kept = std::make_shared<int>(1);
    manager_.onHotKey = [this, kept] {
        manager_.onHotKey = nullptr;
        runs_ += *kept;
    };
    press();
    press();
    turn();
    EXPECT_EQ(runs_, 1);
}

TEST_F(HotKeyPress, AnActionMayRegisterAnotherCombination) {
    manager_.onHotKey = [this] { manager_.registerHotKey({12, cmdKey}); };
    press();
    turn();
    press();
    EXPECT_EQ(desktop().mainQueue.waiting(), 0U);
    desktop().hotKeys.press({12, cmdKey});
    EXPECT_EQ(desktop().mainQueue.waiting(), 1U);
}

TEST_F(HotKeyPress, AfterUnregisteringRunsNothingAlthoughTheActionIsSet) {
    manager_.unregisterHotKey();
    press();
    EXPECT_EQ(desktop().mainQueue.waiting(), 0U);
    EXPECT_TRUE(manager_.onHotKey);
}

} // namespace
