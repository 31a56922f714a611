#pragma once

#include "platform/Accessibility.h"
#include "platform/ActivationPolicy.h"
#include "platform/Workspace.h"
#include "platform/simulated/Clock.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace simulated {

class RunningApplication;

/// A window of an application. It stays valid to look at after it has closed.
class Window {
  public:
    Window(std::string windowTitle, RunningApplication& application);

    const std::string title;
    RunningApplication& owner;
    bool isMinimized = false;

    /// Accepts a request to minimize and stays as it is, as a panel without that button does.
    bool refusesToMinimize = false;
    /// What a request is answered with. Anything but success leaves the window as it is.
    platform::AXError writeResult = platform::AXError::success;

    [[nodiscard]] bool isOpen() const { return isOpen_; }
    /// Whether the user can see it: open, not minimized, and its application not hidden.
    [[nodiscard]] bool isVisible() const;
    /// Misuse when it is closed already.
    void close();

  private:
    bool isOpen_ = true;
};

/// An application that runs, or has run, on the desktop.
class RunningApplication {
  public:
    RunningApplication(std::string applicationName, platform::ProcessIdentifier pid,
                       platform::ActivationPolicy policy);

    const std::string name;
    const platform::ProcessIdentifier processIdentifier;
    platform::ActivationPolicy activationPolicy;
    bool isHidden = false;

    /// What reading "AXWindows" is answered with.
    platform::AXError readResult = platform::AXError::success;
    /// What "AXWindows" holds in place of the list of open windows.
    std::optional<platform::AttributeValue> readValue;
    /// How long each accessibility call on it or its windows takes.
    Clock::Duration answersAfter{};

    /// Opens a window in front of its others. The reference is good until the process ends.
    Window& openWindow(std::string title);
    /// The windows that are open, in the order in which they were opened.
    [[nodiscard]] std::vector<Window*> windows() const;

    [[nodiscard]] bool isTerminated() const { return isTerminated_; }
    /// Ends the application and closes its windows. Misuse when it has ended already.
    void quit();

  private:
    std::vector<std::unique_ptr<Window>> windows_;
    bool isTerminated_ = false;
};

/// The applications that run on the desktop, in the order in which they were started.
class Workspace {
  public:
    /// Starts an application. The reference is good until the process ends.
    RunningApplication&
    launch(std::string name,
           platform::ActivationPolicy policy = platform::ActivationPolicy::regular);

    /// The same for an application that is a real process, such as this one.
    RunningApplication& launch(std::string name, platform::ActivationPolicy policy,
                               platform::ProcessIdentifier processIdentifier);

    /// Fault: whether the desktop keeps a list of its applications at all.
    bool hasList = true;

    /// The applications that have not ended.
    [[nodiscard]] std::vector<const RunningApplication*> running() const;

    /// The application with this identifier, running or ended, or null.
    [[nodiscard]] RunningApplication* find(platform::ProcessIdentifier processIdentifier) const;

  private:
    std::vector<std::unique_ptr<RunningApplication>> applications_;
    // Above every identifier that a Linux or macOS kernel hands out.
    platform::ProcessIdentifier nextProcessIdentifier_ = 5'000'001;
};

} // namespace simulated
