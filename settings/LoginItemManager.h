#pragma once

/// Brings the system's login-item registration in line with a wish. Stateless: the registration
/// itself is the only state, and is read afresh by every call.
class LoginItemManager {
  public:
    LoginItemManager() = delete;

    /// Registers or unregisters the program as a login item, if that changes anything. A failure is
    /// one line in the system log; the caller never learns of it.
    static void setEnabled(bool enabled);
};
