#include "platform/linux/windowmanager/WindowSnapshot.h"

#include "platform/linux/application/OwnProcess.h"
#include "platform/linux/windowmanager/Clients.h"
#include "platform/linux/windowmanager/WindowList.h"
#include "platform/linux/x11/Connection.h"

#include <algorithm>

namespace platform::linux_host {

namespace {

struct Latest {
    std::weak_ptr<const WindowSnapshot> snapshot;
    std::uint64_t turn = 0;
};

Latest& latest() {
    static Latest instance;
    return instance;
}

// Most windows were there the last time already. They are asked about together with the list, so
// that only new ones cost a second round trip.
std::vector<ApplicationRecord> readApplications(Connection& connection) {
    static std::vector<xcb_window_t> lastList;
    WindowListRequest listRequest(connection);
    WindowsRequest windowsRequest(connection);
    ClientsRequest clientsRequest(connection);
    windowsRequest.ask(lastList);
    clientsRequest.ask(lastList);
    lastList.clear();
    if (auto list = listRequest.read()) {
        lastList = std::move(*list);
        windowsRequest.ask(lastList);
        clientsRequest.ask(lastList);
        const auto windows = windowsRequest.read(lastList);
        const auto clients = clientsRequest.read(lastList);
        return applicationsOf(windows, clients, ownProcess(clientsRequest.sharesProcessNumbers()));
    }
    return {};
}

} // namespace

WindowSnapshot::WindowSnapshot(std::vector<ApplicationRecord> applications)
    : applications_(std::move(applications)) {}

WindowSnapshot::~WindowSnapshot() {
    Connection::shared().flush();
}

std::shared_ptr<const WindowSnapshot> WindowSnapshot::take() {
    Connection& connection = Connection::shared();
    std::shared_ptr<const WindowSnapshot> snapshot(
        new WindowSnapshot(readApplications(connection)));
    latest() = {.snapshot = snapshot, .turn = connection.turn()};
    return snapshot;
}

std::shared_ptr<const WindowSnapshot> WindowSnapshot::current() {
    return isHeld() ? latest().snapshot.lock() : take();
}

bool WindowSnapshot::isHeld() {
    return !latest().snapshot.expired() && latest().turn == Connection::shared().turn();
}

const ApplicationRecord* WindowSnapshot::find(ProcessIdentifier processIdentifier) const {
    const auto found = std::find_if(applications_.begin(), applications_.end(),
                                    [=](const ApplicationRecord& application) {
                                        return application.processIdentifier == processIdentifier;
                                    });
    return found != applications_.end() ? &*found : nullptr;
}

} // namespace platform::linux_host
