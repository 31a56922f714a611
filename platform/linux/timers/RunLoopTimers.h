#pragma once

#include "platform/Timer.h"

#include <chrono>
#include <memory>
#include <optional>
#include <vector>

namespace platform::linux_host {

/// The main run loop, as far as timers go: it keeps those that it may fire. Who waits for them, and
/// then calls `fireDue`, is `LoopSleep`.
class RunLoopTimers {
  public:
    using Clock = std::chrono::steady_clock; // which stands still while the machine sleeps

    /// Never destroyed.
    static RunLoopTimers& shared();

    /// The timer is due for the first time one interval after `now`.
    void add(std::shared_ptr<Timer> timer, RunLoopMode mode, Clock::time_point now);
    /// May drop the last reference to the timer.
    void remove(const Timer& timer);

    /// Empty when there is no timer.
    [[nodiscard]] std::optional<Clock::time_point> nextDeadline() const;

    /// Fires each timer that is due once, however many of its firings were missed, and answers
    /// whether one of them was of the default mode. A deadline keeps its place in the beat of its
    /// timer, however late a firing was. Allocates nothing.
    bool fireDue(Clock::time_point now);

  private:
    struct Scheduled {
        std::shared_ptr<Timer> timer;
        RunLoopMode mode;
        Clock::time_point deadline;
    };

    [[nodiscard]] std::vector<Scheduled>::const_iterator earliest() const;
    std::optional<Scheduled> takeDue(Clock::time_point now);

    std::vector<Scheduled> timers_;
};

} // namespace platform::linux_host
