#pragma once

#include "tests/desktop/support/Process.h"
#include "tests/desktop/support/TemporaryFolder.h"
#include "tests/desktop/support/WindowManager.h"
#include "tests/desktop/support/XServer.h"

#include <csignal>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace desktop {

/// A whole desktop of one's own: an X server, a session bus, a home folder and a window manager.
/// Nothing on it is shared with the desktop that the tests are started from. All of it is gone when
/// this object ends.
class VirtualDesktop {
  public:
    /// Returns when the window manager is ready for windows.
    explicit VirtualDesktop(WindowManager manager = WindowManager::openbox, ScreenSize size = {});

    /// The display's name, such as ":7".
    [[nodiscard]] const std::string& display() const { return server_.display(); }
    [[nodiscard]] const Environment& environment() const { return environment_; }
    /// For all programs that are started from now on.
    void setVariable(const std::string& name, std::string value) {
        environment_[name] = std::move(value);
    }

    /// $HOME, $XDG_CONFIG_HOME, and a folder for what the processes of the desktop say.
    [[nodiscard]] std::filesystem::path home() const { return folder_.path() / "home"; }
    [[nodiscard]] std::filesystem::path configuration() const { return home() / ".config"; }
    [[nodiscard]] std::filesystem::path logs() const { return folder_.path() / "logs"; }

    /// A program to be started on this desktop; what it says goes to a log named after it.
    [[nodiscard]] Command command(std::vector<std::string> arguments) const;

    [[nodiscard]] bool hasWindowManager() const { return manager_.has_value(); }
    /// Starts a window manager on a desktop that has none, and waits until it is ready.
    void startWindowManager(WindowManager manager);
    /// Ends the window manager.
    void endWindowManager(int signal = SIGKILL);

    /// Ends the X server under everyone who uses it.
    void endServer() { server_.process().end(); }

    /// Writes a picture of the screen; the folder must exist.
    void takePicture(const std::filesystem::path& pngFile) const;

  private:
    [[nodiscard]] Environment makeEnvironment() const;
    void startSessionBus();

    // In this order: what is listed later leans on what is listed before.
    TemporaryFolder folder_;
    XServer server_;
    Environment environment_;
    std::optional<Process> sessionBus_;
    std::optional<Process> manager_;
};

} // namespace desktop
