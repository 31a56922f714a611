#include "platform/linux/QtConnection.h"

#include "platform/linux/Reply.h"

#include <QGuiApplication>

namespace platform::linux_host {

xcb_connection_t* qtConnection() {
    if (qGuiApp == nullptr) {
        return nullptr;
    }
    const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 != nullptr ? x11->connection() : nullptr;
}

void synchronizeQt() {
    if (xcb_connection_t* const connection = qtConnection()) {
        const Reply<xcb_get_input_focus_reply_t> reply(
            xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    }
}

} // namespace platform::linux_host
