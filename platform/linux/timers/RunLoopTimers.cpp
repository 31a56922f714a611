#include "platform/linux/timers/RunLoopTimers.h"

#include "platform/linux/timers/TimerPeer.h"

#include <algorithm>

namespace platform::linux_host {

RunLoopTimers& RunLoopTimers::shared() {
    static auto* const instance = new RunLoopTimers;
    return *instance;
}

void RunLoopTimers::add(std::shared_ptr<Timer> timer, RunLoopMode mode, Clock::time_point now) {
    const auto deadline = now + timer->peer().interval;
    timers_.push_back({std::move(timer), mode, deadline});
}

void RunLoopTimers::remove(const Timer& timer) {
    std::erase_if(timers_,
                  [&](const Scheduled& scheduled) { return scheduled.timer.get() == &timer; });
}

std::optional<RunLoopTimers::Clock::time_point> RunLoopTimers::nextDeadline() const {
    const auto next = earliest();
    return next == timers_.end() ? std::nullopt : std::optional(next->deadline);
}

bool RunLoopTimers::fireDue(Clock::time_point now) {
    bool hasFiredDefaultMode = false;
    while (const auto due = takeDue(now)) {
        due->timer->peer().block(); // which may add and remove timers, this one too
        hasFiredDefaultMode |= due->mode == RunLoopMode::defaultMode;
    }
    return hasFiredDefaultMode;
}

std::vector<RunLoopTimers::Scheduled>::const_iterator RunLoopTimers::earliest() const {
    return std::ranges::min_element(timers_, {}, &Scheduled::deadline);
}

std::optional<RunLoopTimers::Scheduled> RunLoopTimers::takeDue(Clock::time_point now) {
    const auto next = timers_.begin() + (earliest() - timers_.cbegin());
    if (next == timers_.end() || next->deadline > now) {
        return std::nullopt;
    }
    const auto due = *next;
    const Clock::duration interval = due.timer->peer().interval;
    next->deadline += ((now - next->deadline) / interval + 1) * interval;
    return due;
}

} // namespace platform::linux_host
