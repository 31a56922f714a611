#include "platform/Log.h"

#include "platform/macos/Conversions.h"

#import <os/log.h>

#include <map>

namespace platform {

using macos::Object;

namespace {

// The system wants a handle to be made once for each name and kept. None is ever given back.
os_log_t handleOf(const std::string& subsystem, const std::string& category) {
    using Name = std::pair<std::string, std::string>;
    static auto* const handles = new std::map<Name, Object<os_log_t>>;
    Object<os_log_t>& handle = (*handles)[{subsystem, category}];
    if (handle.get() == nil) {
        handle = Object<os_log_t>::adopt(os_log_create(subsystem.c_str(), category.c_str()));
    }
    return handle.get();
}

} // namespace

void systemLog(std::string_view line) {
    // As an argument: the format's percent signs are instructions.
    NSLog(@"%@", macos::stringToNSString(line).get());
}

Logger::Logger(std::string_view subsystem, std::string_view category)
    : subsystem_(subsystem), category_(category) {}

void Logger::log(std::string_view message) const {
    const std::string text(message);
    os_log(handleOf(subsystem_, category_), "%{public}s", text.c_str());
}

} // namespace platform
