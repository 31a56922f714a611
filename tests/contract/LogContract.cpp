#include "contract/World.h"
#include "platform/Log.h"

namespace {

class LogContract : public contract::ProgramTest {
  protected:
    void SetUp() override {
        if (!world_->canReadLogs()) {
            GTEST_SKIP() << "the logs of this machine are not the test's to read";
        }
    }

    [[nodiscard]] bool becomesLogged(const std::string& text) {
        return world_->turnUntil([&] { return world_->hasLogged(text); });
    }
};

TEST_F(LogContract, ALineIsInThePlainLog) {
    platform::systemLog("a line of a test");
    EXPECT_TRUE(becomesLogged("a line of a test"));
    EXPECT_FALSE(world_->hasLogged("a line of another test"));
}

TEST_F(LogContract, AMessageIsInTheStructuredLogWithItsPublicText) {
    platform::Logger("com.example.Test", "Contract").log("entered topLeft of a test");
    EXPECT_TRUE(becomesLogged("entered topLeft of a test"));
}

TEST_F(LogContract, APercentSignIsAPercentSignInBoth) {
    platform::systemLog("a line: 100%s %n %@ %%");
    platform::Logger("com.example.Test", "Contract").log("a message: 100%s %n %@ %%");
    EXPECT_TRUE(becomesLogged("a line: 100%s %n %@ %%"));
    EXPECT_TRUE(becomesLogged("a message: 100%s %n %@ %%"));
}

} // namespace
