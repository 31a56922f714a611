#include "platform/FatalError.h"

#include <gtest/gtest.h>

#include <csignal>

namespace {

TEST(SimulatedFatalError, SaysWhatIsWrongAndAborts) {
    EXPECT_EXIT(platform::fatalError("100%s of it"), testing::KilledBySignal(SIGABRT),
                "^Fatal error: 100%s of it\n$");
}

} // namespace
