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

    /// This program among the running applications: to open windows of its own, or to see its
    /// policy. Misuse before the program has made its application object.
    [[nodiscard]] RunningApplication& self() const;

    /// Tells the program that it has launched, and comes back: for a test that turns the main queue
    /// itself, in place of `platform::Application::run()`.
    void launch();

    /// The user quits the program.
    void quit();

    [[nodiscard]] bool hasLaunched() const { return hasLaunched_; }
    [[nodiscard]] bool hasTerminated() const { return hasTerminated_; }

    // For the seam.
    void begin();
    [[nodiscard]] bool hasBegun() const { return self_ != nullptr; }
    void setDelegate(platform::ApplicationDelegate* delegate) { delegate_ = delegate; }
    void run();
    void terminate();
    bool setActivationPolicy(platform::ActivationPolicy policy);

  private:
    RunningApplication* self_ = nullptr;
    platform::ApplicationDelegate* delegate_ = nullptr;
    bool hasLaunched_ = false;
    bool hasTerminated_ = false;
};

} // namespace simulated
