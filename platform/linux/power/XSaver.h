#pragma once

namespace platform::linux_host {

class Connection;

/// What can be done about the X server's own screen saver, and its power management of the display
/// with it.
enum class SaverControl {
    none,    ///< it is not the saver of the display, as on XWayland
    reset,   ///< its idle clock can be put back to zero
    suspend, ///< it can be held off
};

/// The answer for the server of this connection, asked for once.
[[nodiscard]] SaverControl saverControl(Connection& connection);

/// Puts the idle clock back to zero, and ends the saver if it shows.
void resetSaver(Connection& connection);

/// Holds the saver off while it lives; the server lets go when the process ends. Does not touch the
/// idle clock, so a locker that watches that one goes on.
class SaverSuspension {
  public:
    explicit SaverSuspension(Connection& connection);
    ~SaverSuspension();
    SaverSuspension(const SaverSuspension&) = delete;
    SaverSuspension& operator=(const SaverSuspension&) = delete;

  private:
    Connection& connection_;
};

} // namespace platform::linux_host
