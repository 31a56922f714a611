#include "platform/linux/WindowMessages.h"

#include "platform/linux/Connection.h"

#include <array>

namespace platform::linux_host {

namespace {

constexpr std::uint32_t iconicState = 3;      // of WM_CHANGE_STATE
constexpr std::uint32_t sourceIsUserTool = 2; // of _NET_ACTIVE_WINDOW: passes focus-stealing checks
constexpr std::uint8_t toSelectorsOnly = 0;   // the request's "propagate"

void sendToWindowManager(Connection& connection, xcb_window_t window, Atom type,
                         std::uint32_t firstItem) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = connection.atom(type);
    message.data.data32[0] = firstItem;
    xcb_send_event(connection.xcb(), toSelectorsOnly, connection.root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&message));
}

} // namespace

void askToMinimize(Connection& connection, xcb_window_t window) {
    sendToWindowManager(connection, window, Atom::wmChangeState, iconicState);
}

void askToActivate(Connection& connection, xcb_window_t window) {
    sendToWindowManager(connection, window, Atom::netActiveWindow, sourceIsUserTool);
}

} // namespace platform::linux_host
