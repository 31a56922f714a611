#include "platform/Log.h"
#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

namespace {

using simulated::desktop;
using testing::ElementsAre;
using testing::IsEmpty;
using Message = simulated::Log::Message;

TEST(SimulatedLog, KeepsLinesInTheirOrderAndAsTheyAre) {
    platform::systemLog("100%s of it");
    platform::systemLog("");
    EXPECT_THAT(desktop().log.lines, ElementsAre("100%s of it", ""));
    EXPECT_THAT(desktop().log.messages, IsEmpty());
}

TEST(SimulatedLog, KeepsMessagesWithWhereTheyCameFrom) {
    const platform::Logger corners("com.example.App", "Corners");
    const platform::Logger power("com.example.App", "Power");
    corners.log("50% %@");
    power.log("on");
    EXPECT_THAT(desktop().log.messages, ElementsAre(Message{"com.example.App", "Corners", "50% %@"},
                                                    Message{"com.example.App", "Power", "on"}));
    EXPECT_THAT(desktop().log.lines, IsEmpty());
}

TEST(SimulatedLog, ALoggerKeepsItsNamesItself) {
    const auto logger = std::make_unique<platform::Logger>(std::string("subsystem of a test"),
                                                           std::string("category of a test"));
    logger->log("");
    EXPECT_THAT(desktop().log.messages,
                ElementsAre(Message{"subsystem of a test", "category of a test", ""}));
}

TEST(SimulatedLog, IsWrittenToInCalls) {
    platform::systemLog("line");
    platform::Logger("subsystem", "category").log("message");
    EXPECT_THAT(desktop().calls.all(), ElementsAre("systemLog(line)", "Logger::log(message)"));
}

} // namespace
