#pragma once

#include <chrono>

namespace simulated {

/// The time of the desktop. It stands still unless a test moves it, or something takes time: an
/// application that answers slowly.
class Clock {
  public:
    using Duration = std::chrono::nanoseconds;

    /// How long the desktop has been up.
    [[nodiscard]] Duration uptime() const { return uptime_; }

    /// Lets time pass. Misuse when it would run backwards.
    void advance(Duration duration);

  private:
    Duration uptime_{};
};

} // namespace simulated
