#include "minimize/WindowMinimizer.h"

#include "platform/Accessibility.h"
#include "platform/Workspace.h"

namespace {

using platform::RunningApplication;
using platform::UIElement;

bool isCandidate(const RunningApplication& application) {
    return application.activationPolicy() == platform::ActivationPolicy::regular &&
           !application.isTerminated();
}

// This program is not left out: while its Dock icon is on, its own windows go with the rest.
std::vector<RunningApplication> candidatesOf(const std::vector<RunningApplication>& snapshot) {
    std::vector<RunningApplication> candidates;
    for (const RunningApplication& application : snapshot) {
        if (isCandidate(application)) {
            candidates.push_back(application);
        }
    }
    return candidates;
}

// No window is left out, by its kind or its state: the application decides, and a refusal is
// silent.
void minimizeWindowsOf(const RunningApplication& candidate) {
    const UIElement application = UIElement::createApplication(candidate.processIdentifier());
    platform::AttributeValue value;
    if (application.copyAttributeValue("AXWindows", value) != platform::AXError::success) {
        return;
    }
    const auto* const windows = std::get_if<std::vector<UIElement>>(&value);
    if (windows == nullptr) {
        return;
    }
    for (const UIElement& window : *windows) {
        window.setAttributeValue("AXMinimized", true);
    }
}

} // namespace

void WindowMinimizer::minimizeAllWindows() {
    if (!platform::isProcessTrusted()) {
        platform::isProcessTrustedWithOptions({.prompt = true});
        return;
    }
    const auto snapshot = platform::Workspace::shared().runningApplications();
    for (const RunningApplication& candidate : candidatesOf(snapshot)) {
        minimizeWindowsOf(candidate);
    }
}
