#include "contract/World.h"
#include "platform/HotKeys.h"

#include <gmock/gmock.h>

namespace {

using platform::EventHotKeyID;
using platform::noErr;
using platform::OSStatus;
using testing::ElementsAre;

constexpr std::uint32_t command = 0x0100;
constexpr std::uint32_t shift = 0x0200;
constexpr std::uint32_t option = 0x0800;
constexpr std::uint32_t control = 0x1000;

constexpr contract::KeyCombination first{46, option | command};           // M
constexpr contract::KeyCombination second{45, control | shift | command}; // N
constexpr EventHotKeyID firstID{0x514C4252, 1};
constexpr EventHotKeyID secondID{0x54455354, 0xFFFFFFFF};

class HotKeysContract : public contract::ProgramTest {
  protected:
    void SetUp() override {
        const auto installed = platform::installHotKeyPressedHandler(&handle, this);
        ASSERT_EQ(installed.status, noErr);
        ASSERT_TRUE(installed.handler);
    }

    static OSStatus handle(const platform::HotKeyEvent& event, void* userData) {
        EventHotKeyID identity;
        EXPECT_EQ(event.directObject(identity), noErr);
        static_cast<HotKeysContract*>(userData)->pressed_.push_back(identity);
        return noErr;
    }

    static platform::RegisteredHotKey take(contract::KeyCombination combination,
                                           EventHotKeyID identity) {
        return platform::registerEventHotKey(combination.keyCode, combination.modifiers, identity);
    }

    [[nodiscard]] bool receives(std::size_t count) {
        return world_->turnUntil([&] { return pressed_.size() >= count; });
    }

    std::vector<EventHotKeyID> pressed_;
};

TEST_F(HotKeysContract, EachPressReachesTheHandlerOnceWithItsIdentity) {
    const auto registered = take(first, firstID);
    EXPECT_EQ(registered.status, noErr);
    EXPECT_TRUE(registered.hotKey);
    EXPECT_TRUE(take(second, secondID).hotKey);
    world_->press(first);
    world_->press(second);
    world_->press(first);
    EXPECT_TRUE(receives(3));
    EXPECT_THAT(pressed_, ElementsAre(firstID, secondID, firstID));
}

TEST_F(HotKeysContract, AKeyThatIsHeldIsOnePress) {
    take(first, firstID);
    take(second, secondID);
    world_->pressLong(first);
    world_->press(second);
    EXPECT_TRUE(receives(2));
    EXPECT_THAT(pressed_, ElementsAre(firstID, secondID));
}

TEST_F(HotKeysContract, OnlyExactlyTheCombinationIsTaken) {
    take(first, firstID);
    take(second, secondID);
    world_->press({first.keyCode, command});
    world_->press({first.keyCode, option | command | shift});
    world_->press({first.keyCode, 0});
    world_->press({31, first.modifiers});
    world_->press(second);
    EXPECT_TRUE(receives(1));
    EXPECT_THAT(pressed_, ElementsAre(secondID));
}

TEST_F(HotKeysContract, AKeyAloneCanBeTaken) {
    EXPECT_TRUE(take({0, 0}, firstID).hotKey);
    world_->press({0, 0});
    EXPECT_TRUE(receives(1));
}

TEST_F(HotKeysContract, ACombinationThatIsGivenBackIsNoLongerDelivered) {
    const auto registered = take(first, firstID);
    take(second, secondID);
    EXPECT_EQ(platform::unregisterEventHotKey(*registered.hotKey), noErr);
    world_->press(first);
    world_->press(second);
    EXPECT_TRUE(receives(1));
    EXPECT_THAT(pressed_, ElementsAre(secondID));
}

TEST_F(HotKeysContract, ACombinationThatIsGivenBackCanBeTakenAgain) {
    EXPECT_EQ(platform::unregisterEventHotKey(*take(first, firstID).hotKey), noErr);
    EXPECT_TRUE(take(first, secondID).hotKey);
    world_->press(first);
    EXPECT_TRUE(receives(1));
    EXPECT_THAT(pressed_, ElementsAre(secondID));
}

TEST_F(HotKeysContract, ACombinationOfAnotherClientIsRefusedUntilThatClientLetsGo) {
    ASSERT_TRUE(world_->holdElsewhere(first));
    const auto refused = take(first, firstID);
    EXPECT_NE(refused.status, noErr);
    EXPECT_FALSE(refused.hotKey);
    world_->releaseElsewhere(first);
    EXPECT_TRUE(take(first, firstID).hotKey);
}

TEST_F(HotKeysContract, ARefusedCombinationIsNotDelivered) {
    ASSERT_TRUE(world_->holdElsewhere(first));
    take(first, firstID);
    take(second, secondID);
    world_->press(first);
    world_->press(second);
    EXPECT_TRUE(receives(1));
    EXPECT_THAT(pressed_, ElementsAre(secondID));
}

TEST_F(HotKeysContract, AnotherClientCanTakeACombinationOnlyWhileThisProgramDoesNotHoldIt) {
    const auto registered = take(first, firstID);
    EXPECT_FALSE(world_->holdElsewhere(first));
    platform::unregisterEventHotKey(*registered.hotKey);
    EXPECT_TRUE(world_->holdElsewhere(first));
}

TEST_F(HotKeysContract, GivingBackWhatIsNoLongerTakenIsAnError) {
    const auto registered = take(first, firstID);
    platform::unregisterEventHotKey(*registered.hotKey);
    EXPECT_NE(platform::unregisterEventHotKey(*registered.hotKey), noErr);
}

} // namespace
