#pragma once

#include "tests/desktop/support/Process.h"
#include "tests/desktop/support/VirtualDesktop.h"

#include <csignal>
#include <iosfwd>
#include <string>

namespace desktop {

/// `trayer` gives every icon the width that it asks for; `tint2` makes all of them squares.
enum class TrayProgram { trayer, tint2 };

/// How a system tray looks.
struct TrayLook {
    int height = 24; ///< pixels
    bool isAtBottom = false;
    bool isDark = false;
};

/// A system tray along the top of the screen, its icons at the right.
class Tray {
  public:
    /// Returns when the tray takes icons.
    Tray(const VirtualDesktop& desktop, TrayProgram program, const TrayLook& look = {});

    void end(int signal = SIGTERM) { process_.end(signal); }
    [[nodiscard]] Process& process() { return process_; }

  private:
    Process process_;
};

} // namespace desktop
