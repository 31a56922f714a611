#include "platform/linux/log/Log.h"

#include "platform/linux/log/LogEntry.h"

#include <set>
#include <string>

namespace platform::linux_host {
namespace {

void write(const LogEntry& entry) {
    if (!sendToJournal(entry, journalSocket)) {
        writeToStandardError(entry);
    }
}

bool isNew(std::string_view cause) {
    static std::set<std::string, std::less<>> causes;
    return causes.emplace(cause).second;
}

} // namespace

void systemLog(std::string_view text) {
    write({.priority = LogPriority::notice, .text = text});
}

void structuredLog(std::string_view subsystem, std::string_view category, std::string_view text) {
    write({LogPriority::notice, text, subsystem, category});
}

void logOnce(std::string_view cause, std::string_view text) {
    if (isNew(cause)) {
        write({.priority = LogPriority::warning, .text = text});
    }
}

} // namespace platform::linux_host
