#include "platform/Accessibility.h"

#include "platform/linux/windowmanager/Trust.h"
#include "platform/linux/windowmanager/WindowMessages.h"
#include "platform/linux/windowmanager/WindowSnapshot.h"
#include "platform/linux/windows/TitledWindow.h"
#include "platform/linux/x11/Connection.h"

namespace platform {

using linux_host::ApplicationRecord;
using linux_host::Connection;
using linux_host::ManagedWindow;
using linux_host::TitledWindow;
using linux_host::WindowSnapshot;

// An application by its identifier, looked up when it is asked something, or a window as it was.
struct UIElement::Peer {
    std::variant<ProcessIdentifier, ManagedWindow> names;
};

namespace {

bool isTrustedOrReport(bool report) {
    const auto reason = linux_host::reasonForDistrust();
    if (!reason) {
        linux_host::forgetReports();
    } else if (report) {
        linux_host::reportDistrust(*reason);
    }
    return !reason;
}

// Within a pass over many windows, what is asked is sent at its end.
AXError send(void (*request)(Connection&, xcb_window_t), xcb_window_t window) {
    Connection& connection = Connection::shared();
    if (connection.isBroken()) {
        return AXError::cannotComplete;
    }
    request(connection, window);
    if (!WindowSnapshot::isHeld()) {
        connection.flush();
    }
    return AXError::success;
}

AXError minimize(const ManagedWindow& window) {
    if (TitledWindow* const own = TitledWindow::find(window.id)) {
        own->minimize();
        return AXError::success;
    }
    return mayBeMinimized(window) ? send(linux_host::askToMinimize, window.id) : AXError::failure;
}

AXError bringBack(const ManagedWindow& window) {
    return send(linux_host::askToActivate, window.id);
}

std::vector<UIElement> windowsOf(const ApplicationRecord& application) {
    std::vector<UIElement> elements;
    elements.reserve(application.windows.size());
    for (const ManagedWindow& window : application.windows) {
        if (isWindowOfApplication(window)) {
            elements.emplace_back(
                std::make_shared<const UIElement::Peer>(UIElement::Peer{.names = window}));
        }
    }
    return elements;
}

} // namespace

bool isProcessTrusted() {
    return isTrustedOrReport(false);
}

bool isProcessTrustedWithOptions(TrustedCheckOptions options) {
    return isTrustedOrReport(options.prompt);
}

UIElement UIElement::createApplication(ProcessIdentifier processIdentifier) {
    return UIElement(std::make_shared<const Peer>(Peer{.names = processIdentifier}));
}

AXError UIElement::copyAttributeValue(std::string_view attribute, AttributeValue& value) const {
    const auto* const processIdentifier = std::get_if<ProcessIdentifier>(&peer_->names);
    if (processIdentifier == nullptr || attribute != "AXWindows") {
        return AXError::attributeUnsupported;
    }
    const auto snapshot = WindowSnapshot::current();
    const ApplicationRecord* const application = snapshot->find(*processIdentifier);
    if (application == nullptr) {
        return AXError::cannotComplete;
    }
    value = windowsOf(*application);
    return AXError::success;
}

AXError UIElement::setAttributeValue(std::string_view attribute, bool value) const {
    const auto* const window = std::get_if<ManagedWindow>(&peer_->names);
    if (window == nullptr || attribute != "AXMinimized") {
        return AXError::attributeUnsupported;
    }
    return value ? minimize(*window) : bringBack(*window);
}

} // namespace platform
