#include "platform/PowerAssertions.h"
#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

namespace {

using simulated::desktop;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using Assertion = simulated::PowerAssertions::Assertion;

constexpr auto displaySleep = "NoDisplaySleepAssertion";

platform::CreatedPowerAssertion create(std::string_view type = displaySleep,
                                       std::uint32_t level = platform::kIOPMAssertionLevelOn) {
    return platform::createPowerAssertion(type, level, "a test");
}

TEST(SimulatedPowerAssertions, KeepTheDisplayAwakeFromCreationToRelease) {
    EXPECT_FALSE(desktop().powerAssertions.displayStaysAwake());
    const auto created = create();
    EXPECT_EQ(created.status, platform::kIOReturnSuccess);
    EXPECT_TRUE(desktop().powerAssertions.displayStaysAwake());
    EXPECT_EQ(platform::releasePowerAssertion(created.id), platform::kIOReturnSuccess);
    EXPECT_FALSE(desktop().powerAssertions.displayStaysAwake());
}

TEST(SimulatedPowerAssertions, AreKnownByTypeLevelAndName) {
    const auto created = create();
    EXPECT_THAT(desktop().powerAssertions.held(),
                ElementsAre(Pair(created.id, Assertion{displaySleep, 255, "a test"})));
}

TEST(SimulatedPowerAssertions, AreHeldApart) {
    const auto first = create();
    const auto second = create();
    EXPECT_NE(first.id, second.id);
    platform::releasePowerAssertion(first.id);
    EXPECT_TRUE(desktop().powerAssertions.displayStaysAwake());
    EXPECT_THAT(desktop().powerAssertions.held(), ElementsAre(Pair(second.id, testing::_)));
}

TEST(SimulatedPowerAssertions, OfAnotherTypeOrThatAreOffLetTheDisplaySleep) {
    create("NoIdleSleepAssertion");
    create(displaySleep, 0);
    EXPECT_EQ(desktop().powerAssertions.held().size(), 2U);
    EXPECT_FALSE(desktop().powerAssertions.displayStaysAwake());
}

TEST(SimulatedPowerAssertions, ThatAreRefusedAreNotHeld) {
    desktop().powerAssertions.createStatus = platform::kIOReturnError;
    EXPECT_EQ(create().status, platform::kIOReturnError);
    EXPECT_THAT(desktop().powerAssertions.held(), IsEmpty());
}

TEST(SimulatedPowerAssertions, AreStillHeldWhenTheirReleaseIsRefused) {
    const auto created = create();
    desktop().powerAssertions.releaseStatus = platform::kIOReturnError;
    EXPECT_EQ(platform::releasePowerAssertion(created.id), platform::kIOReturnError);
    EXPECT_TRUE(desktop().powerAssertions.displayStaysAwake());
}

TEST(SimulatedPowerAssertions, CallsNameTypeLevelNameAndId) {
    platform::releasePowerAssertion(create().id);
    EXPECT_THAT(desktop().calls.all(),
                ElementsAre("createPowerAssertion(NoDisplaySleepAssertion, 255, a test)",
                            "releasePowerAssertion(1)"));
}

TEST(SimulatedPowerAssertions, ThatAreNotHeldCanBeSetToAnswerWithAnError) {
    desktop().powerAssertions.staleID = simulated::PowerAssertions::StaleID::isAnError;
    EXPECT_EQ(platform::releasePowerAssertion(7), platform::kIOReturnNotFound);
}

TEST(SimulatedPowerAssertionsDeathTest, ReleasedTwiceAreFatal) {
    const auto created = create();
    platform::releasePowerAssertion(created.id);
    EXPECT_DEATH(platform::releasePowerAssertion(created.id),
                 "power assertion 1 is released, but is not held");
}

} // namespace
