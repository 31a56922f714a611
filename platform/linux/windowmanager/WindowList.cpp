#include "platform/linux/windowmanager/WindowList.h"

#include "platform/linux/x11/Connection.h"

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

// Programs name their own kinds first and standard ones after them, as window managers expect.
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

PropertyRequest askForList(Connection& connection, Atom name) {
    return {connection, connection.root(), connection.atom(name), XCB_ATOM_WINDOW};
}

std::vector<xcb_window_t> windowsIn(const PropertyItems& list) {
    return {list.items().begin(), list.items().end()};
}

} // namespace

WindowListRequest::WindowListRequest(Connection& connection)
    : connection_(connection), stacking_(askForList(connection, Atom::netClientListStacking)) {}

std::optional<std::vector<xcb_window_t>> WindowListRequest::read() {
    const PropertyItems stacking = stacking_.readItems();
    if (stacking.exists()) {
        return windowsIn(stacking);
    }
    const PropertyItems mapping = askForList(connection_, Atom::netClientList).readItems();
    return mapping.exists() ? std::optional(windowsIn(mapping)) : std::nullopt;
}

void WindowsRequest::ask(const std::vector<xcb_window_t>& windows) {
    for (const xcb_window_t window : windows) {
        const bool isNew = indices_.try_emplace(window, pending_.size()).second;
        if (isNew) {
            pending_.push_back({
                .window = window,
                .types = askForAtoms(connection_, window, Atom::netWmWindowType),
                .states = askForAtoms(connection_, window, Atom::netWmState),
                .allowedActions = askForAtoms(connection_, window, Atom::netWmAllowedActions),
            });
        }
    }
}

ManagedWindow WindowsRequest::readOne(Pending& pending) const {
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

// The answers are taken in the order in which they come, which is cheap, and sorted afterwards.
std::vector<ManagedWindow> WindowsRequest::read(const std::vector<xcb_window_t>& windows) {
    std::vector<ManagedWindow> answers;
    answers.reserve(pending_.size());
    for (Pending& pending : pending_) {
        answers.push_back(readOne(pending));
    }
    std::vector<ManagedWindow> records;
    records.reserve(windows.size());
    for (const xcb_window_t window : windows) {
        records.push_back(answers[indices_.at(window)]);
    }
    return records;
}

} // namespace platform::linux_host
