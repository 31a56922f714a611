#include "platform/linux/windowmanager/Trust.h"

#include "platform/linux/log/Log.h"
#include "platform/linux/x11/Connection.h"
#include "platform/linux/x11/Properties.h"
#include "platform/linux/x11/XWayland.h"

#include <set>
#include <string_view>

namespace platform::linux_host {

namespace {

std::set<Distrust>& reported() {
    static std::set<Distrust> instance;
    return instance;
}

xcb_window_t windowNamedBy(Connection& connection, xcb_window_t window) {
    const PropertyItems property =
        PropertyRequest(connection, window, connection.atom(Atom::netSupportingWmCheck),
                        XCB_ATOM_WINDOW)
            .readItems();
    return property.items().empty() ? xcb_window_t{XCB_WINDOW_NONE} : property.items().front();
}

bool keepsWindowList(Connection& connection) {
    PropertyRequest request(connection, connection.root(), connection.atom(Atom::netSupported),
                            XCB_ATOM_ATOM);
    return request.readItems().contains(connection.atom(Atom::netClientList));
}

void watch(Connection& connection, xcb_window_t window) {
    const std::uint32_t events = XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(connection.xcb(), window, XCB_CW_EVENT_MASK, &events);
}

// The window manager that was found to be good. It says so by a window of its own, which lives as
// long as it does: until the X server tells that this window is gone or has changed there is
// nothing to ask. The root window is not watched, because it changes with every move of the focus.
class WindowManager {
  public:
    static WindowManager& shared() {
        static auto* const instance = new WindowManager(Connection::shared());
        return *instance;
    }

    std::optional<Distrust> reasonForDistrust() {
        connection_.dispatchEvents();
        return window_ != XCB_WINDOW_NONE ? std::nullopt : lookForOne();
    }

  private:
    explicit WindowManager(Connection& connection) : connection_(connection) {
        connection_.subscribe([this](const xcb_generic_event_t& event) { noticeChange(event); });
    }

    // The root's property outlives a window manager that is killed, its window does not: so the
    // window has to be there and to name itself. The watch begins before the look, so that an end
    // in between is noticed.
    std::optional<Distrust> lookForOne() {
        const xcb_window_t named = windowNamedBy(connection_, connection_.root());
        if (named == XCB_WINDOW_NONE) {
            return Distrust::noWindowManager;
        }
        watch(connection_, named);
        if (windowNamedBy(connection_, named) != named) {
            return Distrust::noWindowManager;
        }
        if (!keepsWindowList(connection_)) {
            return Distrust::noWindowList;
        }
        window_ = named;
        return std::nullopt;
    }

    void noticeChange(const xcb_generic_event_t& event) {
        if (window_ != XCB_WINDOW_NONE && windowOf(event) == window_) {
            window_ = XCB_WINDOW_NONE;
        }
    }

    // The window that has ended or has changed its word.
    static xcb_window_t windowOf(const xcb_generic_event_t& event) {
        switch (event.response_type) {
        case XCB_DESTROY_NOTIFY:
            return reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window;
        case XCB_PROPERTY_NOTIFY:
            return reinterpret_cast<const xcb_property_notify_event_t&>(event).window;
        default:
            return XCB_WINDOW_NONE;
        }
    }

    Connection& connection_;
    xcb_window_t window_ = XCB_WINDOW_NONE; ///< none: not found yet, ended or changed
};

bool isOnXWayland(Connection& connection) {
    static const bool answer = isXWayland(connection);
    return answer;
}

std::string_view explanation(Distrust reason) {
    switch (reason) {
    case Distrust::waylandServer:
        return "Quellbar: windows cannot be minimized on a Wayland desktop; "
               "log in to an X11 session";
    case Distrust::noWindowManager:
        return "Quellbar: windows cannot be minimized: no window manager is running";
    case Distrust::noWindowList:
        return "Quellbar: windows cannot be minimized: the window manager keeps no list of them";
    }
    return {};
}

} // namespace

std::optional<Distrust> reasonForDistrust() {
    Connection& connection = Connection::shared();
    if (isOnXWayland(connection)) {
        return Distrust::waylandServer;
    }
    return WindowManager::shared().reasonForDistrust();
}

void reportDistrust(Distrust reason) {
    const bool isNew = reported().insert(reason).second;
    if (isNew) {
        systemLog(explanation(reason));
    }
}

void forgetReports() {
    reported().clear();
}

} // namespace platform::linux_host
