#pragma once

#include "platform/Application.h"

namespace simulated {

class RunningApplication;

/// This program, as the desktop sees it.
class Application {
  public:
    enum class Start { succeeds, findsNoDesktop, findsItRunning };

    // Faults.
    /// What becomes of the first `platform::Application::shared()`. Where there is no desktop the
    /// process ends with status 1; where the program runs already, with status 0.
    Start start = Start::succeeds;
    /// Whether the desktop turns down a change of the activation policy.
    bool refusesPolicy = false;
    /// Whether the desktop declines to bring the program in front of the others.
    bool declinesActivation = false;

    /// This program among the running applications: to open windows of its own, or to see its
    /// policy. Misuse before the program has made its application object.
    [[nodiscard]] RunningApplication& self() const;

    /// Tells the program that it has launched, and comes back: for a test that turns the main queue
    /// itself, in place of `platform::Application::run()`.
    void launch();

    /// The user starts the program a second time.
    void reopen();

    /// The user quits the program.
    void quit();

    /// Whether the keyboard belongs to this program. The user gives it to it by clicking on one of
    /// its windows.
    [[nodiscard]] bool isActive() const { return isActive_; }
    /// The user turns to another program.
    void deactivate() { isActive_ = false; }

    [[nodiscard]] bool hasLaunched() const { return hasLaunched_; }
    [[nodiscard]] bool hasTerminated() const { return hasTerminated_; }

    // For the seam.
    void begin();
    [[nodiscard]] bool hasBegun() const { return self_ != nullptr; }
    void setDelegate(platform::ApplicationDelegate* delegate) { delegate_ = delegate; }
    void run();
    void terminate();
    bool setActivationPolicy(platform::ActivationPolicy policy);
    void setActive() { isActive_ = true; }

  private:
    RunningApplication* self_ = nullptr;
    platform::ApplicationDelegate* delegate_ = nullptr;
    bool isActive_ = false;
    bool hasLaunched_ = false;
    bool hasTerminated_ = false;
};

} // namespace simulated
