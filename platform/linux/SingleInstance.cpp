#include "platform/linux/SingleInstance.h"

#include "platform/linux/Connection.h"
#include "platform/linux/Reply.h"

#include <string>

namespace platform::linux_host {

namespace {

xcb_atom_t selectionOf(const Connection& connection) {
    const std::string name = "_QUELLBAR_S" + std::to_string(connection.screenNumber());
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        connection.xcb(),
        xcb_intern_atom(connection.xcb(), 0, static_cast<std::uint16_t>(name.size()), name.data()),
        nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

bool isOwned(const Connection& connection, xcb_atom_t selection) {
    const Reply<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
        connection.xcb(), xcb_get_selection_owner(connection.xcb(), selection), nullptr));
    return reply && reply->owner != XCB_WINDOW_NONE;
}

// A selection is owned through a window; this one is never shown.
xcb_window_t createOwner(const Connection& connection) {
    const xcb_window_t window = xcb_generate_id(connection.xcb());
    xcb_create_window(connection.xcb(), XCB_COPY_FROM_PARENT, window, connection.root(), -1, -1, 1,
                      1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    return window;
}

} // namespace

// Two programs that start at the same moment would both find the selection free: the server is held
// between looking and taking.
bool claimDisplay(Connection& connection) {
    const xcb_atom_t selection = selectionOf(connection);
    xcb_grab_server(connection.xcb());
    const bool isFree = !isOwned(connection, selection);
    if (isFree) {
        xcb_set_selection_owner(connection.xcb(), createOwner(connection), selection,
                                XCB_CURRENT_TIME);
    }
    xcb_ungrab_server(connection.xcb());
    connection.flush();
    return isFree;
}

} // namespace platform::linux_host
