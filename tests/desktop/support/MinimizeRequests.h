#pragma once

#include "tests/desktop/support/XDisplay.h"

#include <string>
#include <vector>

namespace desktop {

/// Reads along what any program asks the window manager to minimize, from construction on.
class MinimizeRequests {
  public:
    explicit MinimizeRequests(const std::string& display);

    /// The windows named by the requests that have reached the server, in order; a window that was
    /// asked for twice is there twice.
    [[nodiscard]] const std::vector<xcb_window_t>& soFar();

    [[nodiscard]] std::size_t count(xcb_window_t window);

    /// Waits for the first `count` requests. Throws `TimedOut`.
    void waitFor(std::size_t count);

  private:
    void note(const xcb_generic_event_t& event);

    XDisplay display_;
    xcb_atom_t changeState_;
    std::vector<xcb_window_t> windows_;
};

} // namespace desktop
