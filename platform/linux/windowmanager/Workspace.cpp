#include "platform/Workspace.h"

#include "platform/linux/windowmanager/WindowList.h"
#include "platform/linux/windowmanager/WindowSnapshot.h"
#include "platform/linux/x11/Connection.h"

#include <algorithm>
#include <cerrno>
#include <csignal>

namespace platform {

using linux_host::ApplicationKind;
using linux_host::ApplicationRecord;
using linux_host::ManagedWindow;
using linux_host::WindowSnapshot;

// Holding the snapshot keeps it in use for questions about this application's windows.
struct RunningApplication::Peer {
    std::shared_ptr<const WindowSnapshot> snapshot;
    const ApplicationRecord* record;
};

namespace {

bool processIsGone(int processIdentifier) {
    return ::kill(processIdentifier, 0) != 0 && errno == ESRCH;
}

// For what has no process here, being there means having a window.
bool windowsAreGone(const std::vector<ManagedWindow>& windows) {
    const auto list = linux_host::WindowListRequest(linux_host::Connection::shared()).read();
    if (!list) {
        return true;
    }
    return std::none_of(windows.begin(), windows.end(), [&list](const ManagedWindow& window) {
        return std::find(list->begin(), list->end(), window.id) != list->end();
    });
}

} // namespace

ActivationPolicy RunningApplication::activationPolicy() const {
    return peer_->record->activationPolicy;
}

bool RunningApplication::isTerminated() const {
    switch (peer_->record->kind) {
    case ApplicationKind::thisProcess:
        return false;
    case ApplicationKind::localProcess:
        return processIsGone(peer_->record->processIdentifier);
    case ApplicationKind::clients:
        return windowsAreGone(peer_->record->windows);
    }
    return false;
}

ProcessIdentifier RunningApplication::processIdentifier() const {
    return peer_->record->processIdentifier;
}

Workspace& Workspace::shared() {
    static auto* const instance = new Workspace;
    return *instance;
}

std::vector<RunningApplication> Workspace::runningApplications() const {
    const auto snapshot = WindowSnapshot::take();
    std::vector<RunningApplication> applications;
    applications.reserve(snapshot->applications().size());
    for (const ApplicationRecord& record : snapshot->applications()) {
        applications.emplace_back(std::make_shared<const RunningApplication::Peer>(
            RunningApplication::Peer{.snapshot = snapshot, .record = &record}));
    }
    return applications;
}

} // namespace platform
