#pragma once

#include "platform/linux/Applications.h"
#include "platform/linux/Properties.h"

#include <optional>
#include <vector>

namespace platform::linux_host {

class Connection;

/// The windows that the window manager manages, bottom of the stack first where it tells, else in
/// the order of their mapping. Null when it keeps no list. One round trip.
[[nodiscard]] std::optional<std::vector<xcb_window_t>> readWindowList(Connection& connection);

/// Asks what each of many windows is. Construct, then read once: whatever else is asked in between
/// shares the round trip.
class WindowsRequest {
  public:
    WindowsRequest(Connection& connection, const std::vector<xcb_window_t>& windows);

    /// One record for each window, in their order. A window that is gone has no properties.
    [[nodiscard]] std::vector<ManagedWindow> read() const;

  private:
    struct Pending {
        xcb_window_t window;
        PropertyRequest types;
        PropertyRequest states;
        PropertyRequest allowedActions;
    };

    [[nodiscard]] ManagedWindow readOne(const Pending& pending) const;

    Connection& connection_;
    std::vector<Pending> pending_;
};

} // namespace platform::linux_host
