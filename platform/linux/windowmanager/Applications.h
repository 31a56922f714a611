#pragma once

#include "platform/Workspace.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// How the windows of a desktop are made into applications. Plain data and rules: nothing here asks
/// the X server.
namespace platform::linux_host {

/// What a window says it is, by the first of its types that is known. `none`: it says nothing, and
/// is an ordinary window by that.
enum class WindowType {
    none,
    normal,
    dialog,
    utility,
    dock,
    desktop,
    splash,
    toolbar,
    menu,
    notification,
    other, ///< one of the pop-up kinds that window managers do not manage
};

/// One window that the window manager manages.
struct ManagedWindow {
    std::uint32_t id = 0;
    std::uint32_t client = 0; ///< who made it: the part of the id that the X server gave out
    WindowType type = WindowType::none;
    bool skipsTaskbar = false;
    /// The window manager names the actions that it allows for this window, and minimizing is not
    /// among them. Many name none for ordinary windows: then everything is allowed.
    bool forbidsMinimizing = false;
};

/// A process on a machine, as a window tells it.
struct ClaimedProcess {
    std::string machine;
    std::uint32_t processIdentifier = 0;

    auto operator<=>(const ClaimedProcess&) const = default;
};

/// One connection to the X server that has managed windows.
struct Client {
    std::uint32_t id = 0;
    std::optional<int> localProcess;       ///< as the X server knows it
    std::optional<ClaimedProcess> claimed; ///< as its windows tell it
};

/// This process, which is known for certain and not by what a window says.
struct OwnProcess {
    int processIdentifier = 0;
    std::optional<std::uint32_t> client; ///< the client that makes this program's windows
    /// The name of the machine. Empty where the numbers of its processes mean nothing to this one,
    /// as in a container.
    std::string machine;
    ActivationPolicy activationPolicy = ActivationPolicy::regular;
};

/// What stands behind an application.
enum class ApplicationKind {
    thisProcess,
    localProcess,
    clients, ///< clients of the X server whose process is elsewhere or not known
};

/// All the windows of one process.
struct ApplicationRecord {
    ProcessIdentifier processIdentifier = 0;
    ApplicationKind kind = ApplicationKind::clients;
    ActivationPolicy activationPolicy = ActivationPolicy::accessory;
    std::vector<ManagedWindow> windows; ///< in the order of the desktop's list
};

/// Puts the windows of each process together, in the order in which the processes first appear.
/// Clients of one process are one application; clients that cannot be told to be of one process are
/// applications of their own, under a negative number which is the same in every snapshot. This
/// process is always there, last if it has no window.
[[nodiscard]] std::vector<ApplicationRecord>
applicationsOf(const std::vector<ManagedWindow>& windows, const std::vector<Client>& clients,
               const OwnProcess& ownProcess);

/// Whether the window counts as one of its application's "AXWindows": panels and the desktop itself
/// are windows to X, but not to a person.
[[nodiscard]] bool isWindowOfApplication(const ManagedWindow& window);

/// Whether a request to minimize the window may be sent. Window managers exist that minimize on
/// request what has no task-bar entry or does not come back with its parent, and is then lost.
[[nodiscard]] bool mayBeMinimized(const ManagedWindow& window);

} // namespace platform::linux_host
