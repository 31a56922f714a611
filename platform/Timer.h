#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace platform {

/// What a run loop is doing when it looks at its timers.
enum class RunLoopMode {
    defaultMode, ///< ordinary event handling; on macOS not while a menu is open or a control is
                 ///< held
    commonModes, ///< always
};

/// A repeating timer. The run loop that it is added to keeps it until it is invalidated: dropping
/// the last reference to it does not stop it. It measures running time, not wall-clock time, and
/// does not run while the machine sleeps; firings that were missed are made up by one. Main thread
/// only; a block may invalidate its own timer. Stands for NSTimer on macOS, a deadline of the event
/// loop's on Linux, where timers know no modes: all of them go on while a menu is open.
class Timer {
  public:
    using Interval = std::chrono::duration<double>;

    /// A timer that no run loop knows yet.
    [[nodiscard]] static std::shared_ptr<Timer> repeatingTimer(Interval interval,
                                                               std::function<void()> block);

    /// A timer that is added to the main run loop, in its default mode, at once.
    [[nodiscard]] static std::shared_ptr<Timer>
    scheduledRepeatingTimer(Interval interval, std::function<void()> block);

    /// Stops the timer for good; its block is not called again. A second call changes nothing.
    void invalidate();

    /// What the host knows of the timer. Only hosts make and read it.
    struct Peer;
    explicit Timer(std::unique_ptr<Peer> peer);
    ~Timer();
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    [[nodiscard]] Peer& peer() const { return *peer_; }

  private:
    std::unique_ptr<Peer> peer_;
};

/// Lets the main run loop fire `timer` in `mode`, for the first time one interval from now.
void addTimerToMainRunLoop(const std::shared_ptr<Timer>& timer, RunLoopMode mode);

} // namespace platform
