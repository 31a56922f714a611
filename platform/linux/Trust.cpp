#include "platform/linux/Trust.h"

#include "platform/linux/Connection.h"
#include "platform/linux/Log.h"
#include "platform/linux/Properties.h"
#include "platform/linux/XWayland.h"

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

void watch(Connection& connection, xcb_window_t window, std::uint32_t events) {
    xcb_change_window_attributes(connection.xcb(), window, XCB_CW_EVENT_MASK, &events);
}

int kindOf(const xcb_generic_event_t& event) {
    constexpr int sentByClient = 0x80;
    return event.response_type & ~sentByClient;
}

// The window manager that was found to be good. It says so by a window of its own, which lives as
// long as it does, and by properties: until the X server tells that one of these is gone or has
// changed there is nothing to ask.
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
        watch(connection_, connection_.root(), XCB_EVENT_MASK_PROPERTY_CHANGE);
    }

    // The root's property outlives a window manager that is killed, its window does not: so the
    // window has to be there and to name itself. The watch begins before the look, so that an end
    // in between is noticed.
    std::optional<Distrust> lookForOne() {
        const xcb_window_t named = windowNamedBy(connection_, connection_.root());
        if (named == XCB_WINDOW_NONE) {
            return Distrust::noWindowManager;
        }
        watch(connection_, named, XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE);
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
        if (isItsEnd(event) || isAboutManagers(event)) {
            window_ = XCB_WINDOW_NONE;
        }
    }

    [[nodiscard]] bool isItsEnd(const xcb_generic_event_t& event) const {
        return kindOf(event) == XCB_DESTROY_NOTIFY &&
               reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window == window_;
    }

    [[nodiscard]] bool isAboutManagers(const xcb_generic_event_t& event) const {
        if (kindOf(event) != XCB_PROPERTY_NOTIFY) {
            return false;
        }
        const auto changed = reinterpret_cast<const xcb_property_notify_event_t&>(event).atom;
        return changed == connection_.atom(Atom::netSupportingWmCheck) ||
               changed == connection_.atom(Atom::netSupported);
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
