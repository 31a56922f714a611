#include "platform/FatalError.h"

#include <gtest/gtest.h>

#include <csignal>

namespace {

TEST(FatalErrorContract, WritesItsMessageToStandardErrorAndAborts) {
    EXPECT_EXIT(platform::fatalError("the drawer is 100%s empty"), testing::KilledBySignal(SIGABRT),
                "Fatal error: the drawer is 100%s empty");
}

} // namespace
