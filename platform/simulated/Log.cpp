#include "platform/Log.h"

#include "platform/simulated/Desktop.h"

namespace platform {

using simulated::desktop;

void systemLog(std::string_view line) {
    desktop().calls.record("systemLog", {line});
    desktop().log.lines.emplace_back(line);
}

Logger::Logger(std::string_view subsystem, std::string_view category)
    : subsystem_(subsystem), category_(category) {}

void Logger::log(std::string_view message) const {
    desktop().calls.record("Logger::log", {message});
    desktop().log.messages.push_back({subsystem_, category_, std::string(message)});
}

} // namespace platform
