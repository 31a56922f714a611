#include "platform/linux/x11/Monitors.h"

#include "platform/linux/x11/Connection.h"
#include "platform/linux/x11/Reply.h"

#include <algorithm>
#include <xcb/randr.h>

namespace platform::linux_host {

namespace {

constexpr std::uint32_t majorVersion = 1;
constexpr std::uint32_t minorVersion = 5; // the first that knows monitors

const xcb_query_extension_reply_t* randr(xcb_connection_t* connection) {
    const auto* const extension = xcb_get_extension_data(connection, &xcb_randr_id);
    return extension != nullptr && extension->present != 0 ? extension : nullptr;
}

bool askForVersion(xcb_connection_t* connection) {
    if (randr(connection) == nullptr) {
        return false;
    }
    const Reply<xcb_randr_query_version_reply_t> version(xcb_randr_query_version_reply(
        connection, xcb_randr_query_version(connection, majorVersion, minorVersion), nullptr));
    return version && version->major_version == majorVersion &&
           version->minor_version >= minorVersion;
}

bool knowsMonitors(xcb_connection_t* connection) {
    static const bool answer = askForVersion(connection);
    return answer;
}

PixelRect rootWindow(const Connection& connection) {
    const xcb_screen_t& screen = connection.screen();
    return {0, 0, screen.width_in_pixels, screen.height_in_pixels};
}

std::vector<PixelRect> monitorsIn(const xcb_randr_get_monitors_reply_t& reply) {
    std::vector<PixelRect> monitors;
    for (auto rest = xcb_randr_get_monitors_monitors_iterator(&reply); rest.rem > 0;
         xcb_randr_monitor_info_next(&rest)) {
        const xcb_randr_monitor_info_t& monitor = *rest.data;
        monitors.push_back({monitor.x, monitor.y, monitor.width, monitor.height});
        if (monitor.primary != 0) {
            std::rotate(monitors.begin(), std::prev(monitors.end()), monitors.end());
        }
    }
    return monitors;
}

bool isAboutMonitors(const xcb_generic_event_t& event, xcb_window_t root,
                     std::uint8_t firstRandrEvent) {
    constexpr int sentByClient = 0x80;
    const int type = event.response_type & ~sentByClient;
    if (type == XCB_CONFIGURE_NOTIFY) {
        return reinterpret_cast<const xcb_configure_notify_event_t&>(event).window == root;
    }
    return type == firstRandrEvent + XCB_RANDR_SCREEN_CHANGE_NOTIFY ||
           type == firstRandrEvent + XCB_RANDR_NOTIFY;
}

} // namespace

std::vector<PixelRect> readMonitors(Connection& connection) {
    constexpr std::uint8_t activeOnly = 1;
    xcb_connection_t* const xcb = connection.xcb();
    if (!knowsMonitors(xcb)) {
        return {rootWindow(connection)};
    }
    const Reply<xcb_randr_get_monitors_reply_t> reply(xcb_randr_get_monitors_reply(
        xcb, xcb_randr_get_monitors(xcb, connection.root(), activeOnly), nullptr));
    return reply ? monitorsIn(*reply) : std::vector<PixelRect>();
}

// A monitor that is added or removed by hand shows only as a change of the root window.
void watchMonitors(Connection& connection, std::function<void()> onChange) {
    if (!knowsMonitors(connection.xcb())) {
        return;
    }
    connection.selectOnRoot(XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    xcb_randr_select_input(connection.xcb(), connection.root(),
                           XCB_RANDR_NOTIFY_MASK_SCREEN_CHANGE | XCB_RANDR_NOTIFY_MASK_CRTC_CHANGE |
                               XCB_RANDR_NOTIFY_MASK_OUTPUT_CHANGE);
    connection.subscribe([root = connection.root(),
                          firstEvent = randr(connection.xcb())->first_event,
                          notify = std::move(onChange)](const xcb_generic_event_t& event) {
        if (isAboutMonitors(event, root, firstEvent)) {
            notify();
        }
    });
}

} // namespace platform::linux_host
