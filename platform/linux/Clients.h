#pragma once

#include "platform/linux/Applications.h"

#include <map>
#include <optional>
#include <vector>
#include <xcb/res.h>

namespace platform::linux_host {

class Connection;

/// Asks which processes stand behind the clients of many windows. Construct, then read once:
/// whatever else is asked in between shares the round trip.
class ClientsRequest {
  public:
    ClientsRequest(Connection& connection, const std::vector<xcb_window_t>& windows);

    /// One record for each client. If the X server does not know the process of some, their windows
    /// are asked, in one more round trip for all.
    [[nodiscard]] std::vector<Client> read();

    /// Whether the X server counts processes as this one does, which it does not when one of them
    /// lives in a container. Only known after `read`.
    [[nodiscard]] bool sharesProcessNumbers() const { return sharesProcessNumbers_; }

  private:
    void readServersAnswer();
    void askTheirWindows();

    Connection& connection_;
    std::vector<Client> clients_;
    std::map<std::uint32_t, xcb_window_t> windows_; ///< of each client, one
    std::optional<xcb_res_query_client_ids_cookie_t> cookie_;
    bool sharesProcessNumbers_ = true;
};

} // namespace platform::linux_host
