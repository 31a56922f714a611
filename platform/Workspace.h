#pragma once

#include "platform/ActivationPolicy.h"

#include <memory>
#include <vector>

namespace platform {

/// Names one running application to the other services of this process. A local process's
/// identifier where there is one; a negative number, chosen by the host and good for the lifetime
/// of the `RunningApplication` that gave it, where there is none (-1 on macOS).
using ProcessIdentifier = int;

/// One application, as the workspace saw it when the list was taken. A cheap value: copies share.
class RunningApplication {
  public:
    [[nodiscard]] ActivationPolicy activationPolicy() const;

    /// Whether the application has ended since the list was taken.
    [[nodiscard]] bool isTerminated() const;

    [[nodiscard]] ProcessIdentifier processIdentifier() const;

    /// What the host knows of the application. Only hosts make and read it.
    struct Peer;
    explicit RunningApplication(std::shared_ptr<const Peer> peer) : peer_(std::move(peer)) {}

  private:
    std::shared_ptr<const Peer> peer_;
};

/// The applications that run beside this one, and this one. Stands for NSWorkspace on macOS, and on
/// Linux for the window manager's client list, grouped by the processes that own the windows.
class Workspace {
  public:
    static Workspace& shared();

    /// A snapshot of the applications, in the host's order. Empty when the desktop has no list.
    [[nodiscard]] std::vector<RunningApplication> runningApplications() const;

    Workspace(const Workspace&) = delete;
    Workspace& operator=(const Workspace&) = delete;

  private:
    Workspace() = default;
    ~Workspace() = default;
};

} // namespace platform
