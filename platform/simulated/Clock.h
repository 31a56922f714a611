#pragma once

#include "platform/Date.h"

#include <chrono>

namespace simulated {

/// The time of the desktop, twice: how long the machine has run, by which timers go, and what its
/// wall clock says. Both stand still unless a test moves them, or something takes time: an
/// application that answers slowly. No timer fires for it; `RunLoop::run` does that.
class Clock {
  public:
    using Duration = std::chrono::nanoseconds;

    /// How long the machine has run.
    [[nodiscard]] Duration uptime() const { return uptime_; }
    /// What the wall clock says.
    [[nodiscard]] platform::Date wallTime() const;

    /// Time passes. Misuse when it would run backwards.
    void advance(Duration duration);

    /// The machine sleeps: wall-clock time passes, running time does not. Misuse when it would run
    /// backwards.
    void sleep(Duration duration);

    /// Somebody sets the wall clock, forward or (negative) back.
    void setWallClockBy(Duration duration);

  private:
    Duration uptime_{};
    Duration wallTime_ = std::chrono::seconds(800'000'000); // since 2001: a day in 2026
};

} // namespace simulated
