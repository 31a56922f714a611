#include "platform/linux/power/XSaver.h"

#include "platform/linux/x11/Connection.h"
#include "platform/linux/x11/Reply.h"
#include "platform/linux/x11/XWayland.h"

#include <xcb/screensaver.h>

namespace platform::linux_host {

namespace {

bool canSuspend(xcb_connection_t* connection) {
    constexpr std::uint8_t major = 1;
    constexpr std::uint8_t minor = 1; // the first that can
    const auto* const extension = xcb_get_extension_data(connection, &xcb_screensaver_id);
    if (extension == nullptr || extension->present == 0) {
        return false;
    }
    const Reply<xcb_screensaver_query_version_reply_t> version(xcb_screensaver_query_version_reply(
        connection, xcb_screensaver_query_version(connection, major, minor), nullptr));
    return version && version->server_major_version == major &&
           version->server_minor_version >= minor;
}

SaverControl askForControl(Connection& connection) {
    if (isXWayland(connection)) {
        return SaverControl::none;
    }
    return canSuspend(connection.xcb()) ? SaverControl::suspend : SaverControl::reset;
}

void setSuspended(Connection& connection, bool isSuspended) {
    xcb_screensaver_suspend(connection.xcb(), isSuspended ? 1 : 0);
    connection.flush();
}

} // namespace

SaverControl saverControl(Connection& connection) {
    static const SaverControl answer = askForControl(connection);
    return connection.isBroken() ? SaverControl::none : answer;
}

void resetSaver(Connection& connection) {
    xcb_force_screen_saver(connection.xcb(), XCB_SCREEN_SAVER_RESET);
    connection.flush();
}

SaverSuspension::SaverSuspension(Connection& connection) : connection_(connection) {
    setSuspended(connection_, true);
}

SaverSuspension::~SaverSuspension() {
    setSuspended(connection_, false);
}

} // namespace platform::linux_host
