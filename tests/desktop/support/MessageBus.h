#pragma once

#include "tests/desktop/support/Process.h"
#include "tests/desktop/support/VirtualDesktop.h"

#include <optional>
#include <string>

namespace desktop {

/// A message bus of one's own, besides the one that a desktop has.
class MessageBus {
  public:
    /// Returns when the bus takes connections.
    explicit MessageBus(const VirtualDesktop& desktop);

    /// For DBUS_SESSION_BUS_ADDRESS or DBUS_SYSTEM_BUS_ADDRESS.
    [[nodiscard]] const std::string& address() const { return address_; }

    /// Kills the bus.
    void kill() { process_->end(SIGKILL); }

    /// Has the bus take connections, but never answer, until this object ends.
    void hang() const { process_->signal(SIGSTOP); }

  private:
    std::optional<Process> process_;
    std::string address_;
};

} // namespace desktop
