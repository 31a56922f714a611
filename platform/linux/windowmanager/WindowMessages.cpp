#include "platform/linux/windowmanager/WindowMessages.h"

#include "platform/linux/x11/Connection.h"
#include "platform/linux/x11/Properties.h"

#include <algorithm>
#include <array>

namespace platform::linux_host {

namespace {

constexpr std::uint32_t iconicState = 3;      // of WM_CHANGE_STATE
constexpr std::uint32_t sourceIsUserTool = 2; // of _NET_ACTIVE_WINDOW: passes focus-stealing checks
constexpr std::uint32_t sourceIsApplication = 1;
constexpr std::uint32_t removeState = 0; // of _NET_WM_STATE
constexpr std::uint32_t addState = 1;
constexpr std::uint8_t toSelectorsOnly = 0; // the request's "propagate"

using Items = std::array<std::uint32_t, 5>;

void sendToWindowManager(Connection& connection, xcb_window_t window, Atom type,
                         const Items& items) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = connection.atom(type);
    std::ranges::copy(items, std::begin(message.data.data32));
    xcb_send_event(connection.xcb(), toSelectorsOnly, connection.root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&message));
}

// The property _MOTIF_WM_HINTS: which of its parts count, what the manager lets the user do, and
// more that is left as it is.
constexpr std::size_t motifFlags = 0;
constexpr std::size_t motifFunctions = 1;
using MotifHints = std::array<std::uint32_t, 5>;
constexpr std::uint32_t functionsCount = 1; // of the flags
constexpr std::uint32_t minimizeFunction = 8;

MotifHints motifHintsOf(Connection& connection, xcb_window_t window) {
    const xcb_atom_t name = connection.atom(Atom::motifWmHints);
    const PropertyItems property = PropertyRequest(connection, window, name, name).readItems();
    MotifHints hints{};
    std::ranges::copy(property.items().first(std::min(property.items().size(), hints.size())),
                      hints.begin());
    return hints;
}

} // namespace

void askToMinimize(Connection& connection, xcb_window_t window) {
    sendToWindowManager(connection, window, Atom::wmChangeState, {iconicState});
}

void askToActivate(Connection& connection, xcb_window_t window) {
    sendToWindowManager(connection, window, Atom::netActiveWindow, {sourceIsUserTool});
}

void askToSkipTaskbar(Connection& connection, xcb_window_t window, bool skips) {
    sendToWindowManager(connection, window, Atom::netWmState,
                        {skips ? addState : removeState,
                         connection.atom(Atom::netWmStateSkipTaskbar),
                         connection.atom(Atom::netWmStateSkipPager), sourceIsApplication});
}

// Hints that say nothing of functions allow them all.
void setMayBeMinimized(Connection& connection, xcb_window_t window, bool mayBe) {
    MotifHints hints = motifHintsOf(connection, window);
    if ((hints[motifFlags] & functionsCount) == 0) {
        return;
    }
    hints[motifFunctions] = mayBe ? hints[motifFunctions] | minimizeFunction
                                  : hints[motifFunctions] & ~minimizeFunction;
    const xcb_atom_t name = connection.atom(Atom::motifWmHints);
    xcb_change_property(connection.xcb(), XCB_PROP_MODE_REPLACE, window, name, name, 32,
                        static_cast<std::uint32_t>(hints.size()), hints.data());
}

} // namespace platform::linux_host
