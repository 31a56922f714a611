#include "contract/World.h"
#include "platform/PowerAssertions.h"

namespace {

using platform::kIOReturnSuccess;

static_assert(kIOReturnSuccess == 0);
static_assert(platform::kIOPMAssertionLevelOn == 255);

class PowerAssertionsContract : public contract::ProgramTest {
  protected:
    static platform::PowerAssertionID hold() {
        const auto created = platform::createPowerAssertion(
            "NoDisplaySleepAssertion", platform::kIOPMAssertionLevelOn, "a test");
        EXPECT_EQ(created.status, kIOReturnSuccess);
        return created.id;
    }
    [[nodiscard]] bool displayComesToStayAwake(bool isAwake) {
        return world_->turnUntil([&] { return world_->displayStaysAwake() == isAwake; });
    }
};

TEST_F(PowerAssertionsContract, NothingIsHeldUntilItIsAskedFor) {
    EXPECT_FALSE(world_->displayStaysAwake());
}

TEST_F(PowerAssertionsContract, AnAssertionKeepsTheDisplayAwakeUntilItIsReleased) {
    const auto id = hold();
    EXPECT_TRUE(displayComesToStayAwake(true));
    EXPECT_EQ(platform::releasePowerAssertion(id), kIOReturnSuccess);
    EXPECT_TRUE(displayComesToStayAwake(false));
}

TEST_F(PowerAssertionsContract, OfTwoAssertionsTheLastOneReleasedLetsTheDisplaySleep) {
    const auto first = hold();
    const auto second = hold();
    EXPECT_NE(first, second);
    EXPECT_EQ(platform::releasePowerAssertion(first), kIOReturnSuccess);
    EXPECT_TRUE(displayComesToStayAwake(true));
    EXPECT_EQ(platform::releasePowerAssertion(second), kIOReturnSuccess);
    EXPECT_TRUE(displayComesToStayAwake(false));
}

TEST_F(PowerAssertionsContract, CanBeHeldAgainAfterItsRelease) {
    platform::releasePowerAssertion(hold());
    const auto id = hold();
    EXPECT_TRUE(displayComesToStayAwake(true));
    platform::releasePowerAssertion(id);
}

TEST_F(PowerAssertionsContract, ReleasingWhatIsNotHeldIsAnErrorAndChangesNothing) {
    const auto released = hold();
    platform::releasePowerAssertion(released);
    const auto held = hold();
    EXPECT_NE(platform::releasePowerAssertion(released), kIOReturnSuccess);
    EXPECT_TRUE(displayComesToStayAwake(true));
    EXPECT_EQ(platform::releasePowerAssertion(held), kIOReturnSuccess);
}

} // namespace
