#pragma once

#include <optional>
#include <string>

/// Whether this program is started when the user logs in. Stands for SMAppService's
/// main-application service on macOS, an XDG autostart entry on Linux. Main thread only; the calls
/// are synchronous.
namespace platform {

/// The values are SMAppService's.
enum class LoginItemStatus {
    notRegistered = 0,
    enabled = 1,          ///< registered, and the system will start the program
    requiresApproval = 2, ///< registered, but turned off by the user in the system's own settings
    notFound = 3,         ///< the system has no place for it
};

struct LoginItemError {
    std::string description; ///< printable, for the log
};

/// The registration as it stands now.
[[nodiscard]] LoginItemStatus loginItemStatus();

/// Registers the program; empty on success. On Linux, an entry that the user turned off is left
/// alone while the program launches (an error), and turned on when it is asked for later.
[[nodiscard]] std::optional<LoginItemError> registerLoginItem();

/// Removes the registration; empty on success.
[[nodiscard]] std::optional<LoginItemError> unregisterLoginItem();

} // namespace platform
