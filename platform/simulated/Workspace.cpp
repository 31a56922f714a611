#include "platform/Workspace.h"

#include "platform/simulated/Desktop.h"
#include "platform/simulated/Misuse.h"

#include <algorithm>
#include <utility>

namespace simulated {

Window::Window(std::string windowTitle, RunningApplication& application)
    : title(std::move(windowTitle)), owner(application) {}

bool Window::isVisible() const {
    return isOpen_ && !isMinimized && !owner.isHidden;
}

void Window::close() {
    if (!std::exchange(isOpen_, false)) {
        misuse("the window \"" + title + "\" is closed twice");
    }
}

RunningApplication::RunningApplication(std::string applicationName, platform::ProcessIdentifier pid,
                                       platform::ActivationPolicy policy)
    : name(std::move(applicationName)), processIdentifier(pid), activationPolicy(policy) {}

Window& RunningApplication::openWindow(std::string title) {
    if (isTerminated_) {
        misuse(name + " opens a window after it has ended");
    }
    return *windows_.emplace_back(std::make_unique<Window>(std::move(title), *this));
}

std::vector<Window*> RunningApplication::windows() const {
    std::vector<Window*> open;
    for (const auto& window : windows_) {
        if (window->isOpen()) {
            open.push_back(window.get());
        }
    }
    return open;
}

void RunningApplication::quit() {
    if (std::exchange(isTerminated_, true)) {
        misuse(name + " quits twice");
    }
    for (Window* const window : windows()) {
        window->close();
    }
}

RunningApplication& Workspace::launch(std::string name, platform::ActivationPolicy policy) {
    return launch(std::move(name), policy, nextProcessIdentifier_++);
}

RunningApplication& Workspace::launch(std::string name, platform::ActivationPolicy policy,
                                      platform::ProcessIdentifier processIdentifier) {
    return *applications_.emplace_back(
        std::make_unique<RunningApplication>(std::move(name), processIdentifier, policy));
}

std::vector<const RunningApplication*> Workspace::running() const {
    std::vector<const RunningApplication*> running;
    for (const auto& application : applications_) {
        if (!application->isTerminated()) {
            running.push_back(application.get());
        }
    }
    return running;
}

RunningApplication* Workspace::find(platform::ProcessIdentifier processIdentifier) const {
    const auto found =
        std::ranges::find(applications_, processIdentifier,
                          [](const auto& application) { return application->processIdentifier; });
    return found == applications_.end() ? nullptr : found->get();
}

} // namespace simulated

namespace platform {

struct RunningApplication::Peer {
    const simulated::RunningApplication& application;
};

ActivationPolicy RunningApplication::activationPolicy() const {
    simulated::desktop().calls.record("activationPolicy", {peer_->application.name});
    return peer_->application.activationPolicy;
}

bool RunningApplication::isTerminated() const {
    simulated::desktop().calls.record("isTerminated", {peer_->application.name});
    return peer_->application.isTerminated();
}

ProcessIdentifier RunningApplication::processIdentifier() const {
    simulated::desktop().calls.record("processIdentifier", {peer_->application.name});
    return peer_->application.processIdentifier;
}

Workspace& Workspace::shared() {
    static auto* const instance = new Workspace;
    return *instance;
}

std::vector<RunningApplication> Workspace::runningApplications() const {
    simulated::desktop().calls.record("runningApplications");
    std::vector<RunningApplication> snapshot;
    if (!simulated::desktop().workspace.hasList) {
        return snapshot;
    }
    for (const auto* const application : simulated::desktop().workspace.running()) {
        snapshot.emplace_back(
            std::make_shared<RunningApplication::Peer>(RunningApplication::Peer{*application}));
    }
    return snapshot;
}

} // namespace platform
