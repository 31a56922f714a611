#pragma once

#include "tests/desktop/support/XDisplay.h"

#include <chrono>
#include <string>

namespace desktop {

/// The X server's own screen saver. It is off until it is given a time-out.
class Saver {
  public:
    explicit Saver(const std::string& display);

    /// Has the saver start when nobody has touched the keyboard or the pointer for so long.
    void startAfter(std::chrono::seconds idleTime) const;

    [[nodiscard]] bool isShowing() const;

    /// For how long nobody has touched anything, as the server counts it.
    [[nodiscard]] std::chrono::milliseconds idleTime() const;

    /// Throws `TimedOut`.
    void waitUntilShowing() const;

    /// Waits until nobody has touched anything for so long.
    void waitUntilIdleFor(std::chrono::milliseconds time) const;

  private:
    XDisplay display_;
};

} // namespace desktop
