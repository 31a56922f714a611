#include "platform/Application.h"

#include "platform/simulated/Desktop.h"
#include "platform/simulated/Misuse.h"

#include <cstdio>
#include <cstdlib>
#include <unistd.h>
#include <utility>

namespace simulated {
namespace {

std::string_view name(platform::ActivationPolicy policy) {
    switch (policy) {
    case platform::ActivationPolicy::regular:
        return "regular";
    case platform::ActivationPolicy::accessory:
        return "accessory";
    case platform::ActivationPolicy::prohibited:
        return "prohibited";
    }
    return "?";
}

[[noreturn]] void endBecause(const char* cause, int status) {
    std::fprintf(stderr, "simulated desktop: %s\n", cause);
    std::exit(status);
}

} // namespace

RunningApplication& Application::self() const {
    if (self_ == nullptr) {
        misuse("the program has no application object yet");
    }
    return *self_;
}

void Application::begin() {
    switch (start) {
    case Start::succeeds:
        self_ = &desktop().workspace.launch("Quellbar", platform::ActivationPolicy::accessory,
                                            ::getpid());
        return;
    case Start::findsNoDesktop:
        endBecause("there is no desktop", EXIT_FAILURE);
    case Start::findsItRunning:
        endBecause("the program runs already", EXIT_SUCCESS);
    }
}

void Application::launch() {
    if (self_ == nullptr) {
        misuse("the program launches without an application object");
    }
    if (std::exchange(hasLaunched_, true)) {
        misuse("the program launches twice");
    }
    if (delegate_ != nullptr) {
        delegate_->applicationDidFinishLaunching();
    }
}

void Application::reopen() {
    if (!hasLaunched_ || hasTerminated_) {
        misuse("the user starts a program a second time that does not run");
    }
    if (delegate_ != nullptr) {
        delegate_->applicationDidReopen();
    }
}

void Application::quit() {
    if (self_ == nullptr) {
        misuse("the user quits a program that has not started");
    }
    terminate();
}

void Application::run() {
    launch();
    while (!hasTerminated_) {
        if (desktop().mainQueue.waiting() == 0) {
            misuse("the program would run for ever: nothing waits for it and nobody ends it");
        }
        desktop().mainQueue.turn();
    }
}

void Application::terminate() {
    if (!hasLaunched_) {
        misuse("the program is ended before it has launched");
    }
    if (std::exchange(hasTerminated_, true)) {
        return;
    }
    if (delegate_ != nullptr) {
        delegate_->applicationWillTerminate();
    }
    desktop().mainQueue.close();
    self_->quit();
}

bool Application::setActivationPolicy(platform::ActivationPolicy policy) {
    if (!refusesPolicy) {
        self_->activationPolicy = policy;
    }
    return !refusesPolicy;
}

} // namespace simulated

namespace platform {

using simulated::desktop;

Application* Application::current() {
    return desktop().application.hasBegun() ? &shared() : nullptr;
}

Application& Application::shared() {
    if (!desktop().application.hasBegun()) {
        desktop().calls.record("Application::shared");
        desktop().application.begin();
    }
    static auto* const instance = new Application;
    return *instance;
}

void Application::setDelegate(ApplicationDelegate* delegate) {
    desktop().calls.record("setDelegate");
    desktop().application.setDelegate(delegate);
}

void Application::run() {
    desktop().calls.record("run");
    desktop().application.run();
}

void Application::terminate() {
    desktop().calls.record("terminate");
    desktop().application.terminate();
}

bool Application::setActivationPolicy(ActivationPolicy policy) {
    desktop().calls.record("setActivationPolicy", {simulated::name(policy)});
    return desktop().application.setActivationPolicy(policy);
}

void Application::activateIgnoringOtherApps() {
    desktop().calls.record("activateIgnoringOtherApps");
    if (!desktop().application.declinesActivation) {
        desktop().application.setActive();
    }
}

} // namespace platform
