#include "platform/FatalError.h"

#include <gtest/gtest.h>

#include <csignal>

TEST(FatalError, SaysWhatIsWrongAndAborts) {
    EXPECT_EXIT(platform::fatalError("the drawer is empty"), testing::KilledBySignal(SIGABRT),
                "^Fatal error: the drawer is empty\n$");
}

TEST(FatalError, APercentSignInTheMessageIsText) {
    EXPECT_EXIT(platform::fatalError("100%s"), testing::KilledBySignal(SIGABRT),
                "^Fatal error: 100%s\n$");
}

TEST(FatalError, OnlyTheTextOfTheViewIsWritten) {
    const std::string_view text = "short and more";
    EXPECT_EXIT(platform::fatalError(text.substr(0, 5)), testing::KilledBySignal(SIGABRT),
                "^Fatal error: short\n$");
}
