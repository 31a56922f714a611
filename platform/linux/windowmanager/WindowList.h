#pragma once

#include "platform/linux/windowmanager/Applications.h"
#include "platform/linux/x11/Properties.h"

#include <optional>
#include <unordered_map>
#include <vector>

namespace platform::linux_host {

class Connection;

/// Asks for the windows that the window manager manages. Construct, then read once: whatever is
/// asked in between shares the round trip.
class WindowListRequest {
  public:
    explicit WindowListRequest(Connection& connection);

    /// Bottom of the stack first. Where the window manager does not tell the stack, in the order of
    /// their mapping, for one more round trip. Null when it keeps no list.
    [[nodiscard]] std::optional<std::vector<xcb_window_t>> read();

  private:
    Connection& connection_;
    PropertyRequest stacking_;
};

/// Asks what each of many windows is. All that is asked before the reading shares one round trip.
class WindowsRequest {
  public:
    explicit WindowsRequest(Connection& connection) : connection_(connection) {}

    /// Asks about those of the windows that have not been asked about yet.
    void ask(const std::vector<xcb_window_t>& windows);

    /// One record for each of the windows, in their order; all of them have to have been asked
    /// about. A window that is gone has no properties. To be called once.
    [[nodiscard]] std::vector<ManagedWindow> read(const std::vector<xcb_window_t>& windows);

  private:
    struct Pending {
        xcb_window_t window;
        PropertyRequest types;
        PropertyRequest states;
        PropertyRequest allowedActions;
    };

    [[nodiscard]] ManagedWindow readOne(Pending& pending) const;

    Connection& connection_;
    std::vector<Pending> pending_;
    std::unordered_map<xcb_window_t, std::size_t> indices_; ///< into `pending_`
};

} // namespace platform::linux_host
