#include "platform/simulated/RunLoop.h"

#include "platform/simulated/Desktop.h"
#include "platform/simulated/Misuse.h"

#include <algorithm>
#include <utility>

// A timer belongs to one run loop at most, and to none again once it is invalid.
struct platform::Timer::Peer {
    simulated::Clock::Duration interval;
    std::function<void()> block;
    bool isValid = true;
};

namespace simulated {
namespace {

Clock::Duration nextInPhase(Clock::Duration due, Clock::Duration interval, Clock::Duration now) {
    const auto missed = now < due ? 0 : (now - due) / interval;
    return due + (missed + 1) * interval;
}

} // namespace

void RunLoop::run(Clock::Duration duration) {
    if (duration < Clock::Duration::zero()) {
        misuse("the run loop runs backwards");
    }
    if (std::exchange(isRunning_, true)) {
        misuse("a timer or a task runs the run loop that runs it");
    }
    runUntil(desktop().clock.uptime() + duration);
    isRunning_ = false;
}

void RunLoop::runUntil(Clock::Duration end) {
    Clock& clock = desktop().clock;
    desktop().mainQueue.turnUntilIdle();
    while (Scheduled* const next = nextDueBy(end)) {
        clock.advance(std::max(next->due - clock.uptime(), Clock::Duration::zero()));
        fire(*next);
        desktop().mainQueue.turnUntilIdle();
    }
    clock.advance(std::max(end - clock.uptime(), Clock::Duration::zero()));
}

// The timer is kept while its block runs: that may invalidate it, and with it the schedule's entry.
void RunLoop::fire(Scheduled& scheduled) {
    const std::shared_ptr<platform::Timer> timer = scheduled.timer;
    scheduled.due = nextInPhase(scheduled.due, timer->peer().interval, desktop().clock.uptime());
    timer->peer().block();
}

RunLoop::Scheduled* RunLoop::nextDueBy(Clock::Duration moment) {
    Scheduled* next = nullptr;
    for (Scheduled& scheduled : timers_) {
        const bool isSooner = next == nullptr || scheduled.due < next->due;
        if (mayFire(scheduled) && scheduled.due <= moment && isSooner) {
            next = &scheduled;
        }
    }
    return next;
}

bool RunLoop::mayFire(const Scheduled& scheduled) const {
    return !isTracking_ || !timersKnowModes || scheduled.mode == platform::RunLoopMode::commonModes;
}

void RunLoop::beginTracking() {
    if (std::exchange(isTracking_, true)) {
        misuse("the run loop is tracking already");
    }
}

void RunLoop::endTracking() {
    if (!std::exchange(isTracking_, false)) {
        misuse("the run loop is not tracking");
    }
}

std::size_t RunLoop::timerCount(platform::RunLoopMode mode) const {
    return static_cast<std::size_t>(std::ranges::count(timers_, mode, &Scheduled::mode));
}

void RunLoop::add(const std::shared_ptr<platform::Timer>& timer, platform::RunLoopMode mode) {
    if (timer == nullptr || !timer->peer().isValid) {
        misuse("a timer is added to the run loop that is none, or is no longer valid");
    }
    if (holds(*timer)) {
        misuse("a timer is added to the run loop twice");
    }
    timers_.push_back({timer, mode, desktop().clock.uptime() + timer->peer().interval});
}

void RunLoop::remove(const platform::Timer& timer) {
    std::erase_if(timers_,
                  [&](const Scheduled& scheduled) { return scheduled.timer.get() == &timer; });
}

bool RunLoop::holds(const platform::Timer& timer) const {
    return std::ranges::any_of(
        timers_, [&](const Scheduled& scheduled) { return scheduled.timer.get() == &timer; });
}

} // namespace simulated

namespace platform {

using simulated::desktop;

namespace {

std::string milliseconds(Timer::Interval interval) {
    return std::to_string(std::chrono::round<std::chrono::milliseconds>(interval).count()) + " ms";
}

} // namespace

Timer::Timer(std::unique_ptr<Peer> peer) : peer_(std::move(peer)) {}
Timer::~Timer() = default;

std::shared_ptr<Timer> Timer::repeatingTimer(Interval interval, std::function<void()> block) {
    desktop().calls.record("Timer::repeatingTimer", {milliseconds(interval)});
    const auto exact = std::chrono::round<simulated::Clock::Duration>(interval);
    if (exact <= simulated::Clock::Duration::zero() || !block) {
        simulated::misuse("a timer needs an interval and a block");
    }
    return std::make_shared<Timer>(std::make_unique<Peer>(Peer{exact, std::move(block)}));
}

std::shared_ptr<Timer> Timer::scheduledRepeatingTimer(Interval interval,
                                                      std::function<void()> block) {
    auto timer = repeatingTimer(interval, std::move(block));
    addTimerToMainRunLoop(timer, RunLoopMode::defaultMode);
    return timer;
}

void Timer::invalidate() {
    desktop().calls.record("Timer::invalidate");
    peer_->isValid = false;
    desktop().runLoop.remove(*this);
}

void addTimerToMainRunLoop(const std::shared_ptr<Timer>& timer, RunLoopMode mode) {
    desktop().calls.record("addTimerToMainRunLoop",
                           {mode == RunLoopMode::commonModes ? "commonModes" : "defaultMode"});
    desktop().runLoop.add(timer, mode);
}

} // namespace platform
