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

PropertyRequest askForCheckWindow(Connection& connection, xcb_window_t window) {
    return {connection, window, connection.atom(Atom::netSupportingWmCheck), XCB_ATOM_WINDOW};
}

xcb_window_t readCheckWindow(const PropertyRequest& request) {
    const PropertyItems property = request.readItems();
    return property.items().empty() ? xcb_window_t{XCB_WINDOW_NONE} : property.items().front();
}

// The root's property outlives a window manager that is killed. Its window does not, so that window
// has to be there and to name itself.
class WindowManagerCheck {
  public:
    /// Asks. The window named last time is asked at once with the root: as a rule it is the same.
    explicit WindowManagerCheck(Connection& connection)
        : connection_(connection), root_(askForCheckWindow(connection, connection.root())),
          expected_(askForCheckWindow(connection, expectedWindow)) {}

    bool read() {
        const xcb_window_t named = readCheckWindow(root_);
        const xcb_window_t expectedAnswer = readCheckWindow(expected_);
        if (named == XCB_WINDOW_NONE) {
            return false;
        }
        if (named == expectedWindow) {
            return expectedAnswer == named;
        }
        expectedWindow = named;
        return readCheckWindow(askForCheckWindow(connection_, named)) == named;
    }

  private:
    static inline xcb_window_t expectedWindow = XCB_WINDOW_NONE;

    Connection& connection_;
    PropertyRequest root_;
    PropertyRequest expected_;
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
    WindowManagerCheck windowManager(connection);
    const PropertyRequest supportedRequest(connection, connection.root(),
                                           connection.atom(Atom::netSupported), XCB_ATOM_ATOM);
    const bool isManaged = windowManager.read();
    const PropertyItems supported = supportedRequest.readItems();
    if (!isManaged) {
        return Distrust::noWindowManager;
    }
    if (!supported.contains(connection.atom(Atom::netClientList))) {
        return Distrust::noWindowList;
    }
    return std::nullopt;
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
