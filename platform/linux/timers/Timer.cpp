#include "platform/Timer.h"

#include "platform/linux/timers/RunLoopTimers.h"
#include "platform/linux/timers/TimerPeer.h"

#include <algorithm>
#include <utility>

namespace platform {

namespace {

using linux_host::RunLoopTimers;

// A timer that is due at once still lets the loop turn; the longest one is due in a hundred years.
std::chrono::nanoseconds countable(Timer::Interval interval) {
    constexpr Timer::Interval least = std::chrono::milliseconds{1};
    constexpr Timer::Interval most = std::chrono::years{100};
    return std::chrono::duration_cast<std::chrono::nanoseconds>(std::clamp(interval, least, most));
}

} // namespace

Timer::Timer(std::unique_ptr<Peer> peer) : peer_(std::move(peer)) {}

Timer::~Timer() = default;

std::shared_ptr<Timer> Timer::repeatingTimer(Interval interval, std::function<void()> block) {
    return std::make_shared<Timer>(
        std::make_unique<Peer>(Peer{.interval = countable(interval), .block = std::move(block)}));
}

std::shared_ptr<Timer> Timer::scheduledRepeatingTimer(Interval interval,
                                                      std::function<void()> block) {
    auto timer = repeatingTimer(interval, std::move(block));
    addTimerToMainRunLoop(timer, RunLoopMode::defaultMode);
    return timer;
}

void Timer::invalidate() {
    if (std::exchange(peer_->state, TimerState::invalid) == TimerState::scheduled) {
        RunLoopTimers::shared().remove(*this); // this may have been the last owner
    }
}

void addTimerToMainRunLoop(const std::shared_ptr<Timer>& timer, RunLoopMode mode) {
    Timer::Peer& peer = timer->peer();
    if (peer.state == TimerState::idle) {
        peer.state = TimerState::scheduled;
        RunLoopTimers::shared().add(timer, mode, RunLoopTimers::Clock::now());
    }
}

} // namespace platform
