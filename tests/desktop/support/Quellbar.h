#pragma once

#include "tests/desktop/support/KeyGrabs.h"
#include "tests/desktop/support/Keyboard.h"
#include "tests/desktop/support/Log.h"
#include "tests/desktop/support/Process.h"
#include "tests/desktop/support/VirtualDesktop.h"

#include <string>
#include <string_view>

namespace desktop {

/// ⌥⌘M on a PC keyboard.
extern const Chord defaultShortcut;

/// The program that the tests are about, started on a desktop as a user's session starts it. Ends
/// with this object.
class Quellbar {
  public:
    /// Returns when the program has launched: the desktop's events are answered, and the shortcut
    /// is registered if it is going to be.
    explicit Quellbar(const VirtualDesktop& desktop);

    /// How to start the program, for whoever does not expect it to stay.
    [[nodiscard]] static Command command(const VirtualDesktop& desktop);

    [[nodiscard]] Process& process() { return process_; }
    [[nodiscard]] const Log& log() const { return log_; }

    /// Returns when the program has handled every key that was pressed before, and all that a key
    /// made it do has reached the X server.
    void settle();

    /// Ends the program by a signal and says how it ended.
    Ended end(int signal = SIGTERM) { return process_.end(signal); }

  private:
    void waitUntilLaunched();

    XDisplay display_;
    Log log_;
    Process process_;
};

/// The settings file of the desktop's user.
[[nodiscard]] std::filesystem::path defaultsFile(const VirtualDesktop& desktop);

/// Has the user's settings be exactly this text, which need not be well-formed.
void storeDefaults(const VirtualDesktop& desktop, std::string_view text);

/// The settings that hold nothing but this as the stored shortcut: bytes, well-formed or not.
[[nodiscard]] std::string defaultsWithShortcut(std::string_view bytes);

} // namespace desktop
