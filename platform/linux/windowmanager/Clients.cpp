#include "platform/linux/windowmanager/Clients.h"

#include "platform/linux/x11/Connection.h"
#include "platform/linux/x11/Properties.h"

#include <unistd.h>
#include <utility>

namespace platform::linux_host {

namespace {

void readInto(std::map<std::uint32_t, int>& processes,
              const xcb_res_query_client_ids_reply_t& reply) {
    auto value = xcb_res_query_client_ids_ids_iterator(&reply);
    for (; value.rem > 0; xcb_res_client_id_value_next(&value)) {
        if (xcb_res_client_id_value_value_length(value.data) == 1) {
            processes.emplace(value.data->spec.client,
                              static_cast<int>(*xcb_res_client_id_value_value(value.data)));
        }
    }
}

bool hasXResource(xcb_connection_t* connection) {
    const auto* const extension = xcb_get_extension_data(connection, &xcb_res_id);
    return extension != nullptr && extension->present != 0;
}

struct ClaimRequest {
    Client& client;
    PropertyRequest process;
    PropertyRequest machine;
};

std::optional<ClaimedProcess> readClaim(ClaimRequest& request) {
    const PropertyItems process = request.process.readItems();
    std::string machine = request.machine.readText();
    if (process.items().empty()) {
        return std::nullopt;
    }
    return ClaimedProcess{.machine = std::move(machine),
                          .processIdentifier = process.items().front()};
}

} // namespace

// This process's own client is asked about too: the answer shows how the server counts processes.
ClientsRequest::ClientsRequest(Connection& connection) : connection_(connection) {
    ask({connection.setup().resource_id_base});
}

ClientsRequest::~ClientsRequest() {
    for (const auto cookie : cookies_) {
        xcb_discard_reply(connection_.xcb(), cookie.sequence);
    }
}

void ClientsRequest::ask(const std::vector<xcb_window_t>& windows) {
    std::vector<xcb_res_client_id_spec_t> specs;
    for (const xcb_window_t window : windows) {
        const std::uint32_t client = connection_.clientOf(window);
        if (asked_.insert(client).second) {
            specs.push_back({.client = client, .mask = XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID});
        }
    }
    if (!specs.empty() && hasXResource(connection_.xcb())) {
        cookies_.push_back(xcb_res_query_client_ids(
            connection_.xcb(), static_cast<std::uint32_t>(specs.size()), specs.data()));
    }
}

std::vector<Client> ClientsRequest::read(const std::vector<xcb_window_t>& windows) {
    const Processes processes = readServersAnswers();
    std::map<std::uint32_t, xcb_window_t> windowsByClient;
    for (const xcb_window_t window : windows) {
        windowsByClient.try_emplace(connection_.clientOf(window), window);
    }
    std::vector<Client> clients;
    for (const auto& [id, window] : windowsByClient) {
        const auto process = processes.find(id);
        const bool isKnown = sharesProcessNumbers_ && process != processes.end();
        clients.push_back({.id = id,
                           .localProcess = isKnown ? std::optional(process->second) : std::nullopt,
                           .claimed = std::nullopt});
    }
    askTheirWindows(clients, windowsByClient);
    return clients;
}

ClientsRequest::Processes ClientsRequest::readServersAnswers() {
    Processes processes;
    for (const auto cookie : std::exchange(cookies_, {})) {
        const Reply<xcb_res_query_client_ids_reply_t> reply(
            xcb_res_query_client_ids_reply(connection_.xcb(), cookie, nullptr));
        if (reply) {
            readInto(processes, *reply);
        }
    }
    const auto ownProcess = processes.find(connection_.setup().resource_id_base);
    sharesProcessNumbers_ = ownProcess == processes.end() || ownProcess->second == ::getpid();
    return processes;
}

void ClientsRequest::askTheirWindows(std::vector<Client>& clients,
                                     const std::map<std::uint32_t, xcb_window_t>& windows) const {
    std::vector<ClaimRequest> requests;
    for (Client& client : clients) {
        if (client.localProcess) {
            continue;
        }
        const xcb_window_t window = windows.at(client.id);
        requests.push_back(
            {.client = client,
             .process = {connection_, window, connection_.atom(Atom::netWmPid), XCB_ATOM_CARDINAL},
             .machine = {connection_, window, XCB_ATOM_WM_CLIENT_MACHINE, XCB_ATOM_ANY}});
    }
    for (ClaimRequest& request : requests) {
        request.client.claimed = readClaim(request);
    }
}

} // namespace platform::linux_host
