#include "contract/World.h"
#include "platform/LoginItem.h"

namespace {

using platform::LoginItemStatus;

static_assert(static_cast<int>(LoginItemStatus::notRegistered) == 0);
static_assert(static_cast<int>(LoginItemStatus::enabled) == 1);
static_assert(static_cast<int>(LoginItemStatus::requiresApproval) == 2);
static_assert(static_cast<int>(LoginItemStatus::notFound) == 3);

using LoginItemContract = contract::ProgramTest;

TEST_F(LoginItemContract, AProgramThatWasNeverRegisteredIsNotStarted) {
    EXPECT_EQ(platform::loginItemStatus(), LoginItemStatus::notRegistered);
    EXPECT_FALSE(world_->startsAtLogin());
}

TEST_F(LoginItemContract, ARegisteredProgramIsStarted) {
    EXPECT_FALSE(platform::registerLoginItem());
    EXPECT_EQ(platform::loginItemStatus(), LoginItemStatus::enabled);
    EXPECT_TRUE(world_->startsAtLogin());
}

TEST_F(LoginItemContract, AProgramWhoseRegistrationIsRemovedIsNoLongerStarted) {
    EXPECT_FALSE(platform::registerLoginItem());
    EXPECT_FALSE(platform::unregisterLoginItem());
    EXPECT_EQ(platform::loginItemStatus(), LoginItemStatus::notRegistered);
    EXPECT_FALSE(world_->startsAtLogin());
}

TEST_F(LoginItemContract, AProgramCanBeRegisteredAgain) {
    EXPECT_FALSE(platform::registerLoginItem());
    EXPECT_FALSE(platform::unregisterLoginItem());
    EXPECT_FALSE(platform::registerLoginItem());
    EXPECT_TRUE(world_->startsAtLogin());
}

TEST_F(LoginItemContract, WhatTheUserTurnedOffRequiresApproval) {
    EXPECT_FALSE(platform::registerLoginItem());
    world_->turnLoginItemOff();
    EXPECT_EQ(platform::loginItemStatus(), LoginItemStatus::requiresApproval);
    EXPECT_FALSE(world_->startsAtLogin());
}

TEST_F(LoginItemContract, ARegistrationThatFailsSaysWhyAndChangesNothing) {
    world_->loseLoginItems();
    const auto error = platform::registerLoginItem();
    ASSERT_TRUE(error);
    EXPECT_FALSE(error->description.empty());
    EXPECT_NE(platform::loginItemStatus(), LoginItemStatus::enabled);
    EXPECT_FALSE(world_->startsAtLogin());
}

TEST_F(LoginItemContract, ARemovalThatFailsSaysWhyAndChangesNothing) {
    EXPECT_FALSE(platform::registerLoginItem());
    world_->loseLoginItems();
    const auto error = platform::unregisterLoginItem();
    ASSERT_TRUE(error);
    EXPECT_FALSE(error->description.empty());
    EXPECT_TRUE(world_->startsAtLogin());
}

} // namespace
