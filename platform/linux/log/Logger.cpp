#include "platform/Log.h"

#include "platform/linux/log/Log.h"

namespace platform {

void systemLog(std::string_view line) {
    linux_host::systemLog(line);
}

Logger::Logger(std::string_view subsystem, std::string_view category)
    : subsystem_(subsystem), category_(category) {}

void Logger::log(std::string_view message) const {
    linux_host::structuredLog(subsystem_, category_, message);
}

} // namespace platform
