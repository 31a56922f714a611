#pragma once

namespace platform::linux_host {

/// Catches the signals that ask the process to end, SIGTERM, SIGINT and SIGHUP, and ignores
/// SIGPIPE: a reader that goes away is no reason to end. From here on a caught signal makes the
/// returned descriptor readable, for good. Negative if that cannot be had; the signals then act as
/// ever.
[[nodiscard]] int catchTerminationSignals();

} // namespace platform::linux_host
