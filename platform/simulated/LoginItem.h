#pragma once

#include "platform/LoginItem.h"

#include <optional>
#include <string>

namespace simulated {

/// The system's service for login items.
class LoginItem {
  public:
    platform::LoginItemStatus status = platform::LoginItemStatus::notRegistered;

    /// The status that a registration leads to.
    platform::LoginItemStatus registeringLeadsTo = platform::LoginItemStatus::enabled;

    // Faults: the description of the error with which a call is refused; the status stays.
    std::optional<std::string> registerError;
    std::optional<std::string> unregisterError;

    // For the seam.
    std::optional<platform::LoginItemError> add();
    std::optional<platform::LoginItemError> remove();
};

} // namespace simulated
