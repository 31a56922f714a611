#include "platform/linux/Clients.h"

#include "platform/linux/Connection.h"
#include "platform/linux/Properties.h"

#include <unistd.h>

namespace platform::linux_host {

namespace {

// Process numbers by client, as the server knows them; remote clients have none.
std::map<std::uint32_t, int> processesIn(const xcb_res_query_client_ids_reply_t* reply) {
    std::map<std::uint32_t, int> processes;
    if (reply == nullptr) {
        return processes;
    }
    auto value = xcb_res_query_client_ids_ids_iterator(reply);
    for (; value.rem > 0; xcb_res_client_id_value_next(&value)) {
        if (xcb_res_client_id_value_value_length(value.data) == 1) {
            processes.emplace(value.data->spec.client,
                              static_cast<int>(*xcb_res_client_id_value_value(value.data)));
        }
    }
    return processes;
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

std::optional<ClaimedProcess> readClaim(const ClaimRequest& request) {
    const PropertyItems process = request.process.readItems();
    std::string machine = request.machine.readText();
    if (process.items().empty()) {
        return std::nullopt;
    }
    return ClaimedProcess{.machine = std::move(machine),
                          .processIdentifier = process.items().front()};
}

} // namespace

ClientsRequest::ClientsRequest(Connection& connection, const std::vector<xcb_window_t>& windows)
    : connection_(connection) {
    for (const xcb_window_t window : windows) {
        windows_.try_emplace(connection.clientOf(window), window);
    }
    if (!hasXResource(connection.xcb())) {
        return;
    }
    std::vector<xcb_res_client_id_spec_t> specs;
    const auto askFor = [&specs](std::uint32_t client) {
        specs.push_back({.client = client, .mask = XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID});
    };
    askFor(connection.setup().resource_id_base);
    for (const auto& [client, window] : windows_) {
        askFor(client);
    }
    cookie_ = xcb_res_query_client_ids(connection.xcb(), static_cast<std::uint32_t>(specs.size()),
                                       specs.data());
}

std::vector<Client> ClientsRequest::read() {
    for (const auto& [client, window] : windows_) {
        clients_.push_back({.id = client, .localProcess = {}, .claimed = {}});
    }
    readServersAnswer();
    askTheirWindows();
    return std::move(clients_);
}

void ClientsRequest::readServersAnswer() {
    if (!cookie_) {
        return;
    }
    const Reply<xcb_res_query_client_ids_reply_t> reply(
        xcb_res_query_client_ids_reply(connection_.xcb(), *cookie_, nullptr));
    const auto processes = processesIn(reply.get());
    const auto ownProcess = processes.find(connection_.setup().resource_id_base);
    sharesProcessNumbers_ = ownProcess == processes.end() || ownProcess->second == ::getpid();
    if (!sharesProcessNumbers_) {
        return;
    }
    for (Client& client : clients_) {
        if (const auto found = processes.find(client.id); found != processes.end()) {
            client.localProcess = found->second;
        }
    }
}

void ClientsRequest::askTheirWindows() {
    std::vector<ClaimRequest> requests;
    for (Client& client : clients_) {
        if (client.localProcess) {
            continue;
        }
        const xcb_window_t window = windows_.at(client.id);
        requests.push_back(
            {.client = client,
             .process = {connection_, window, connection_.atom(Atom::netWmPid), XCB_ATOM_CARDINAL},
             .machine = {connection_, window, XCB_ATOM_WM_CLIENT_MACHINE, XCB_ATOM_ANY}});
    }
    for (const ClaimRequest& request : requests) {
        request.client.claimed = readClaim(request);
    }
}

} // namespace platform::linux_host
