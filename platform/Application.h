#pragma once

#include "platform/ActivationPolicy.h"

namespace platform {

/// What the desktop tells the program about its own life, on the main thread.
class ApplicationDelegate {
  public:
    /// The event loop is up; from here on the program may use every service. Called once.
    virtual void applicationDidFinishLaunching() = 0;
    /// The user has started the program although it runs already; the second process, if there was
    /// one, is gone. Stands for applicationShouldHandleReopen without visible windows on macOS.
    virtual void applicationDidReopen() = 0;
    /// The process is about to end; the last chance to give back what would outlive it. Called
    /// once.
    virtual void applicationWillTerminate() = 0;

  protected:
    ApplicationDelegate() = default;
    ~ApplicationDelegate() = default;
    ApplicationDelegate(const ApplicationDelegate&) = default;
    ApplicationDelegate& operator=(const ApplicationDelegate&) = default;
};

/// The running program, as the desktop sees it. One object a process; it lives until the process
/// ends. Stands for NSApplication on macOS, QApplication on Linux.
class Application {
  public:
    /// The one application object, made by the first call. Where the desktop cannot be reached, or
    /// the program already runs on it, the call says so on standard error and ends the process.
    static Application& shared();

    /// The application object if `shared()` has made it, else null. Never makes one.
    [[nodiscard]] static Application* current();

    /// Sets who is told about launch and termination. Not retained: the delegate must outlive
    /// `run()`.
    void setDelegate(ApplicationDelegate* delegate);

    /// Runs the event loop, beginning with `applicationDidFinishLaunching()`. Comes back, if the
    /// desktop lets it at all, after `terminate()`.
    void run();

    /// Ends the program: the delegate hears `applicationWillTerminate()` once, then the event loop
    /// ends and the process exits with status 0. A second call changes nothing.
    void terminate();

    /// Shows or hides the Dock icon (on Linux: the task-bar entries of this program's windows).
    /// Answers whether the desktop accepted the policy.
    bool setActivationPolicy(ActivationPolicy policy);

    /// Brings the program in front of whatever other program is active. A request: the desktop may
    /// decline it.
    void activateIgnoringOtherApps();

    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

  private:
    Application() = default;
    ~Application() = default;
};

} // namespace platform
