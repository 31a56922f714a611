#pragma once

#include <string_view>

namespace platform::linux_host {

/// The syslog levels that are used.
enum class LogPriority { warning = 4, notice = 5 };

/// One entry of the log. An empty subsystem or category is left out.
struct LogEntry {
    LogPriority priority = LogPriority::notice;
    std::string_view text;
    std::string_view subsystem = {};
    std::string_view category = {};
};

/// Where the systemd journal listens.
inline constexpr std::string_view journalSocket = "/run/systemd/journal/socket";

/// Sends the entry in the journal's native protocol. False when nobody listens there or the journal
/// does not keep up: the entry is then not sent, and nothing was waited for.
[[nodiscard]] bool sendToJournal(const LogEntry& entry, std::string_view socketPath);

/// Writes the entry as one line of at most `PIPE_BUF` bytes: longer texts are cut, and control
/// characters become spaces. Nothing is written when standard error is closed, has lost its reader,
/// or would have to be waited for.
void writeToStandardError(const LogEntry& entry);

} // namespace platform::linux_host
