#include "platform/linux/WindowList.h"

#include "platform/linux/Connection.h"

#include <array>

namespace platform::linux_host {

namespace {

struct NamedType {
    Atom name;
    WindowType type;
};

constexpr std::array namedTypes{
    NamedType{Atom::netWmWindowTypeNormal, WindowType::normal},
    NamedType{Atom::netWmWindowTypeDialog, WindowType::dialog},
    NamedType{Atom::netWmWindowTypeUtility, WindowType::utility},
    NamedType{Atom::netWmWindowTypeDock, WindowType::dock},
    NamedType{Atom::netWmWindowTypeDesktop, WindowType::desktop},
    NamedType{Atom::netWmWindowTypeSplash, WindowType::splash},
    NamedType{Atom::netWmWindowTypeToolbar, WindowType::toolbar},
    NamedType{Atom::netWmWindowTypeMenu, WindowType::menu},
    NamedType{Atom::netWmWindowTypeNotification, WindowType::notification},
    NamedType{Atom::netWmWindowTypeDropdownMenu, WindowType::other},
    NamedType{Atom::netWmWindowTypePopupMenu, WindowType::other},
    NamedType{Atom::netWmWindowTypeTooltip, WindowType::other},
    NamedType{Atom::netWmWindowTypeCombo, WindowType::other},
    NamedType{Atom::netWmWindowTypeDnd, WindowType::other},
};

// Programs name their own kinds first and standard ones after them, as the window manager
// specification asks them to.
WindowType firstKnownType(const Connection& connection, const PropertyItems& types) {
    for (const xcb_atom_t type : types.items()) {
        for (const NamedType& named : namedTypes) {
            if (connection.atom(named.name) == type) {
                return named.type;
            }
        }
    }
    return WindowType::none;
}

PropertyRequest askForAtoms(Connection& connection, xcb_window_t window, Atom name) {
    return {connection, window, connection.atom(name), XCB_ATOM_ATOM};
}

std::optional<std::vector<xcb_window_t>> windowsIn(const PropertyItems& list) {
    if (!list.exists()) {
        return std::nullopt;
    }
    return std::vector<xcb_window_t>(list.items().begin(), list.items().end());
}

} // namespace

std::optional<std::vector<xcb_window_t>> readWindowList(Connection& connection) {
    const auto askForWindows = [&connection](Atom name) {
        return PropertyRequest(connection, connection.root(), connection.atom(name),
                               XCB_ATOM_WINDOW);
    };
    const PropertyRequest stackingRequest = askForWindows(Atom::netClientListStacking);
    const PropertyRequest mappingRequest = askForWindows(Atom::netClientList);
    auto stacking = windowsIn(stackingRequest.readItems());
    auto mapping = windowsIn(mappingRequest.readItems());
    return stacking ? stacking : mapping;
}

WindowsRequest::WindowsRequest(Connection& connection, const std::vector<xcb_window_t>& windows)
    : connection_(connection) {
    pending_.reserve(windows.size());
    for (const xcb_window_t window : windows) {
        pending_.push_back({
            .window = window,
            .types = askForAtoms(connection, window, Atom::netWmWindowType),
            .states = askForAtoms(connection, window, Atom::netWmState),
            .allowedActions = askForAtoms(connection, window, Atom::netWmAllowedActions),
        });
    }
}

ManagedWindow WindowsRequest::readOne(const Pending& pending) const {
    const PropertyItems types = pending.types.readItems();
    const PropertyItems states = pending.states.readItems();
    const PropertyItems actions = pending.allowedActions.readItems();
    return {
        .id = pending.window,
        .client = connection_.clientOf(pending.window),
        .type = firstKnownType(connection_, types),
        .skipsTaskbar = states.contains(connection_.atom(Atom::netWmStateSkipTaskbar)),
        .forbidsMinimizing = !actions.items().empty() &&
                             !actions.contains(connection_.atom(Atom::netWmActionMinimize)),
    };
}

std::vector<ManagedWindow> WindowsRequest::read() const {
    std::vector<ManagedWindow> windows;
    windows.reserve(pending_.size());
    for (const Pending& pending : pending_) {
        windows.push_back(readOne(pending));
    }
    return windows;
}

} // namespace platform::linux_host
