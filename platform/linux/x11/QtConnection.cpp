#include "platform/linux/x11/QtConnection.h"

#include "platform/linux/x11/Connection.h"
#include "platform/linux/x11/Reply.h"

#include <QGuiApplication>

namespace platform::linux_host {

xcb_connection_t* qtConnection() {
    if (qGuiApp == nullptr) {
        return nullptr;
    }
    const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 != nullptr ? x11->connection() : nullptr;
}

// Over Qt's connection, which may not have sent the window's creation yet.
void setWindowType(xcb_window_t window, xcb_atom_t type) {
    if (xcb_connection_t* const connection = qtConnection()) {
        const xcb_atom_t name = Connection::shared().atom(Atom::netWmWindowType);
        xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, name, XCB_ATOM_ATOM, 32, 1,
                            &type);
    }
}

void synchronizeQt() {
    if (xcb_connection_t* const connection = qtConnection()) {
        const Reply<xcb_get_input_focus_reply_t> reply(
            xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    }
}

} // namespace platform::linux_host
