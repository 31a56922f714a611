#pragma once

#include "tests/desktop/support/Channel.h"
#include "tests/desktop/support/Process.h"

#include <filesystem>
#include <string>

namespace desktop {

/// In pixels.
struct ScreenSize {
    int width = 1280;
    int height = 800;
};

/// An X server without a screen (Xvfb), on a display number of its own choosing.
class XServer {
  public:
    /// Returns when the server takes connections. What it says is appended to `log`.
    XServer(ScreenSize size, const std::filesystem::path& log);

    /// The display's name, such as ":7".
    [[nodiscard]] const std::string& display() const { return display_; }
    [[nodiscard]] Process& process() { return process_; }

  private:
    Channel channel_;
    Process process_;
    std::string display_;
};

} // namespace desktop
