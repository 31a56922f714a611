#pragma once

#include "platform/linux/windowmanager/Applications.h"

#include <map>
#include <set>
#include <vector>
#include <xcb/res.h>

namespace platform::linux_host {

class Connection;

/// Asks which processes stand behind the clients of many windows. All that is asked before the
/// reading shares one round trip.
class ClientsRequest {
  public:
    explicit ClientsRequest(Connection& connection);
    ~ClientsRequest();
    ClientsRequest(const ClientsRequest&) = delete;
    ClientsRequest& operator=(const ClientsRequest&) = delete;

    /// Asks about the windows' clients, so far as they have not been asked about yet.
    void ask(const std::vector<xcb_window_t>& windows);

    /// One record for each client of the windows, all of which have to have been asked about. If
    /// the X server does not know the process of some, their windows are asked, in one more round
    /// trip for all. To be called once.
    [[nodiscard]] std::vector<Client> read(const std::vector<xcb_window_t>& windows);

    /// Whether the X server counts processes as this one does, which it does not when one of them
    /// lives in a container. Known after `read`.
    [[nodiscard]] bool sharesProcessNumbers() const { return sharesProcessNumbers_; }

  private:
    using Processes = std::map<std::uint32_t, int>; ///< by client; remote ones have none

    [[nodiscard]] Processes readServersAnswers();
    void askTheirWindows(std::vector<Client>& clients,
                         const std::map<std::uint32_t, xcb_window_t>& windows) const;

    Connection& connection_;
    std::set<std::uint32_t> asked_;
    std::vector<xcb_res_query_client_ids_cookie_t> cookies_; ///< not answered yet
    bool sharesProcessNumbers_ = true;
};

} // namespace platform::linux_host
