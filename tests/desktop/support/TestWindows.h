#pragma once

#include "tests/desktop/support/Channel.h"
#include "tests/desktop/support/Process.h"
#include "tests/desktop/support/WindowSpec.h"
#include "tests/desktop/support/Windows.h"

#include <string>
#include <vector>

namespace desktop {

class VirtualDesktop;

/// An application with windows to order: a process of its own, which opens what a test asks for and
/// ends with this object.
class TestWindows {
  public:
    explicit TestWindows(const VirtualDesktop& desktop);

    /// Opens a window and waits until the window manager, if there is one, has taken it.
    xcb_window_t open(const WindowSpec& spec = {});
    std::vector<xcb_window_t> open(int count, const WindowSpec& spec = {});

    void destroy(const std::vector<xcb_window_t>& windows);

    /// Has the application destroy `victims` at the moment at which `watched` is minimized.
    void destroyWhenMinimized(xcb_window_t watched, const std::vector<xcb_window_t>& victims);
    /// Has the application end at the moment at which `watched` is minimized.
    void endWhenMinimized(xcb_window_t watched);

    [[nodiscard]] Process& process() { return process_; }

  private:
    void waitUntilTaken(const std::vector<xcb_window_t>& windows, const WindowSpec& spec) const;
    std::string ask(const std::string& request);

    Windows windows_;
    bool hasManager_;
    Channel channel_;
    Process process_;
};

} // namespace desktop
