#pragma once

#include "platform/Timer.h"
#include "platform/simulated/Clock.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

namespace simulated {

/// The main run loop, with the timers that it keeps.
class RunLoop {
  public:
    /// Lets time pass, firing every timer that comes due in order of its time (equal times in the
    /// order of adding), and running the tasks of the main queue before time goes on. Timers that a
    /// slow answer or a held menu made late fire once for all that they missed, and keep their
    /// phase. Misuse from within a block that it runs, or when time would run backwards.
    void run(Clock::Duration duration);

    /// The user holds a menu open, or a control down: only timers of the common modes fire, until
    /// it is let go. Misuse when it is so already, or is not.
    void beginTracking();
    void endTracking();

    /// Whether timers know modes, as on a Mac. Where they do not, as on Linux, all of them go on
    /// while a menu is open.
    bool timersKnowModes = true;

    /// How many timers are scheduled, in any mode or in one.
    [[nodiscard]] std::size_t timerCount() const { return timers_.size(); }
    [[nodiscard]] std::size_t timerCount(platform::RunLoopMode mode) const;

    // For the seam.
    void add(const std::shared_ptr<platform::Timer>& timer, platform::RunLoopMode mode);
    void remove(const platform::Timer& timer);
    [[nodiscard]] bool holds(const platform::Timer& timer) const;

  private:
    struct Scheduled {
        std::shared_ptr<platform::Timer> timer;
        platform::RunLoopMode mode;
        Clock::Duration due;
    };

    void runUntil(Clock::Duration end);
    [[nodiscard]] bool mayFire(const Scheduled& scheduled) const;
    [[nodiscard]] Scheduled* nextDueBy(Clock::Duration moment);
    static void fire(Scheduled& scheduled);

    std::vector<Scheduled> timers_;
    bool isRunning_ = false;
    bool isTracking_ = false;
};

} // namespace simulated
