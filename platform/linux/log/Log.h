#pragma once

#include <string_view>

/// The system's log, for the Linux host's own use: the systemd journal, or one line on standard
/// error where there is no journal. Texts are text: a `%` in them means nothing. No call fails, and
/// none waits, not even for a journal or a reader of standard error that is stuck. Main thread
/// only.
namespace platform::linux_host {

/// Writes one entry, at the level "notice".
void systemLog(std::string_view text);

/// Writes one entry at the level "notice", with the journal fields SUBSYSTEM and CATEGORY.
void structuredLog(std::string_view subsystem, std::string_view category, std::string_view text);

/// Tells the user, at the level "warning", what is wrong with the set-up. Only the first text of
/// each cause is written in a run. The text names the program, as standard error does not.
void logOnce(std::string_view cause, std::string_view text);

} // namespace platform::linux_host
