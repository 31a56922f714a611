#include "platform/Accessibility.h"

#include "platform/simulated/Desktop.h"

#include <string>
#include <variant>

namespace simulated {

void Accessibility::prompt() {
    if (!isTrusted) {
        ++promptsShown_;
    }
}

} // namespace simulated

namespace platform {

// What an element names: an application by its process, which need not exist, or a window.
struct UIElement::Peer {
    std::variant<ProcessIdentifier, simulated::Window*> named;
};

namespace {

using simulated::desktop;

struct Names {
    std::string operator()(ProcessIdentifier pid) const {
        const auto* const application = desktop().workspace.find(pid);
        return application == nullptr ? "process " + std::to_string(pid) : application->name;
    }
    std::string operator()(const simulated::Window* window) const { return window->title; }
};

UIElement windowElement(simulated::Window* window) {
    return UIElement(std::make_shared<UIElement::Peer>(UIElement::Peer{window}));
}

AttributeValue windowList(const simulated::RunningApplication& application) {
    std::vector<UIElement> elements;
    for (simulated::Window* const window : application.windows()) {
        elements.push_back(windowElement(window));
    }
    return elements;
}

AXError readWindows(const simulated::RunningApplication& application, AttributeValue& value) {
    desktop().clock.advance(application.answersAfter);
    if (application.readResult == AXError::success) {
        value = application.readValue.value_or(windowList(application));
    }
    return application.readResult;
}

AXError writeMinimized(simulated::Window& window, bool isMinimized) {
    desktop().clock.advance(window.owner.answersAfter);
    if (window.writeResult == AXError::success && !window.refusesToMinimize) {
        window.isMinimized = isMinimized;
    }
    return window.writeResult;
}

} // namespace

bool isProcessTrusted() {
    desktop().calls.record("isProcessTrusted");
    return desktop().accessibility.isTrusted;
}

bool isProcessTrustedWithOptions(TrustedCheckOptions options) {
    desktop().calls.record("isProcessTrustedWithOptions", {options.prompt ? "prompt" : ""});
    if (options.prompt) {
        desktop().accessibility.prompt();
    }
    return desktop().accessibility.isTrusted;
}

UIElement UIElement::createApplication(ProcessIdentifier processIdentifier) {
    desktop().calls.record("createApplication", {Names{}(processIdentifier)});
    return UIElement(std::make_shared<Peer>(Peer{processIdentifier}));
}

AXError UIElement::copyAttributeValue(std::string_view attribute, AttributeValue& value) const {
    desktop().calls.record("copyAttributeValue", {std::visit(Names{}, peer_->named), attribute});
    const auto* const pid = std::get_if<ProcessIdentifier>(&peer_->named);
    if (pid == nullptr || attribute != "AXWindows") {
        return AXError::attributeUnsupported;
    }
    const auto* const application = desktop().workspace.find(*pid);
    if (application == nullptr || application->isTerminated()) {
        return AXError::invalidUIElement;
    }
    return readWindows(*application, value);
}

AXError UIElement::setAttributeValue(std::string_view attribute, bool value) const {
    desktop().calls.record("setAttributeValue", {std::visit(Names{}, peer_->named), attribute,
                                                 value ? "true" : "false"});
    auto* const* const window = std::get_if<simulated::Window*>(&peer_->named);
    if (window == nullptr || attribute != "AXMinimized") {
        return AXError::attributeUnsupported;
    }
    return (*window)->isOpen() ? writeMinimized(**window, value) : AXError::invalidUIElement;
}

} // namespace platform
