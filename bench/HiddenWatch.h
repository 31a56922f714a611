#pragma once

#include "tests/desktop/support/XDisplay.h"

#include <chrono>
#include <set>
#include <string>
#include <vector>

namespace bench {

/// Tells when the last of some windows was minimized, disturbing the window manager as little as
/// possible meanwhile: it only listens until every window has changed its state, and then looks.
class HiddenWatch {
  public:
    using Moment = std::chrono::steady_clock::time_point;

    HiddenWatch(const std::string& display, std::vector<xcb_window_t> windows);

    /// Forgets what has happened so far. To be called while all windows are shown and at rest.
    void reset();

    /// Waits until all windows are minimized, and answers when the last change arrived here.
    [[nodiscard]] Moment waitForLast();

  private:
    [[nodiscard]] bool allHidden() const;
    void noteNextChange();

    desktop::XDisplay display_;
    std::vector<xcb_window_t> windows_;
    std::set<xcb_window_t> unchanged_;
    Moment lastChange_;
};

} // namespace bench
