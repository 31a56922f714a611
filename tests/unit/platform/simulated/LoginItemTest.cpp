#include "platform/LoginItem.h"
#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

namespace {

using platform::LoginItemStatus;
using simulated::desktop;
using testing::ElementsAre;

TEST(SimulatedLoginItem, IsEnabledByARegistrationAndGoneAfterItsRemoval) {
    EXPECT_EQ(platform::loginItemStatus(), LoginItemStatus::notRegistered);
    EXPECT_FALSE(platform::registerLoginItem());
    EXPECT_EQ(platform::loginItemStatus(), LoginItemStatus::enabled);
    EXPECT_FALSE(platform::unregisterLoginItem());
    EXPECT_EQ(platform::loginItemStatus(), LoginItemStatus::notRegistered);
}

TEST(SimulatedLoginItem, MayHaveToBeApprovedByTheUser) {
    desktop().loginItem.registeringLeadsTo = LoginItemStatus::requiresApproval;
    EXPECT_FALSE(platform::registerLoginItem());
    EXPECT_EQ(platform::loginItemStatus(), LoginItemStatus::requiresApproval);
}

TEST(SimulatedLoginItem, IsAsItWasWhenARegistrationIsRefused) {
    desktop().loginItem.registerError = "no room";
    EXPECT_EQ(platform::registerLoginItem()->description, "no room");
    EXPECT_EQ(platform::loginItemStatus(), LoginItemStatus::notRegistered);
}

TEST(SimulatedLoginItem, IsAsItWasWhenItsRemovalIsRefused) {
    desktop().loginItem.status = LoginItemStatus::enabled;
    desktop().loginItem.unregisterError = "busy";
    EXPECT_EQ(platform::unregisterLoginItem()->description, "busy");
    EXPECT_EQ(platform::loginItemStatus(), LoginItemStatus::enabled);
}

TEST(SimulatedLoginItem, IsAskedForInCalls) {
    (void)platform::loginItemStatus();
    (void)platform::registerLoginItem();
    (void)platform::unregisterLoginItem();
    EXPECT_THAT(desktop().calls.all(),
                ElementsAre("loginItemStatus()", "registerLoginItem()", "unregisterLoginItem()"));
}

} // namespace
