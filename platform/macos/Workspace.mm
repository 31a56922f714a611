#include "platform/Workspace.h"

#include "platform/macos/Conversions.h"

namespace platform {

using macos::Object;

struct RunningApplication::Peer {
    Object<NSRunningApplication*> application;
};

ActivationPolicy RunningApplication::activationPolicy() const {
    return macos::nsToActivationPolicy(peer_->application.get().activationPolicy);
}

bool RunningApplication::isTerminated() const {
    return peer_->application.get().terminated == YES;
}

ProcessIdentifier RunningApplication::processIdentifier() const {
    return peer_->application.get().processIdentifier;
}

Workspace& Workspace::shared() {
    static auto* const workspace = new Workspace;
    return *workspace;
}

std::vector<RunningApplication> Workspace::runningApplications() const {
    std::vector<RunningApplication> snapshot;
    for (NSRunningApplication* application in NSWorkspace.sharedWorkspace.runningApplications) {
        snapshot.emplace_back(std::make_shared<const RunningApplication::Peer>(
            RunningApplication::Peer{Object<NSRunningApplication*>::share(application)}));
    }
    return snapshot;
}

} // namespace platform
