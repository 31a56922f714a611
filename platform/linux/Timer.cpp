#include "platform/Timer.h"

#include <QObject>
#include <QTimerEvent>
#include <algorithm>
#include <cmath>
#include <limits>
#include <map>

namespace platform {

enum class TimerState { idle, scheduled, invalid };

struct Timer::Peer {
    int milliseconds = 0;
    std::function<void()> block;
    TimerState state = TimerState::idle;
    int id = 0; // Qt's, while scheduled
};

namespace {

// What Qt can count. A timer that is due at once still lets the loop turn.
int wholeMilliseconds(Timer::Interval interval) {
    constexpr double most = std::numeric_limits<int>::max();
    const double milliseconds = std::round(interval.count() * 1000);
    return milliseconds >= 1 ? static_cast<int>(std::min(milliseconds, most)) : 1;
}

// The main run loop, as far as timers go: it keeps those that it may fire. Qt counts monotonic
// time, makes up missed firings by one, and does not fire a timer whose block still runs.
class RunLoopTimers final : public QObject {
  public:
    static RunLoopTimers& shared() {
        static auto* const instance = new RunLoopTimers;
        return *instance;
    }

    // A coarse timer of Qt's may be late by a twentieth of its interval.
    int add(const std::shared_ptr<Timer>& timer) {
        const int id = startTimer(timer->peer().milliseconds, Qt::PreciseTimer);
        timers_.emplace(id, timer);
        return id;
    }

    void remove(int id) {
        killTimer(id);
        timers_.erase(id);
    }

  protected:
    void timerEvent(QTimerEvent* event) override {
        const auto found = timers_.find(event->timerId());
        if (found != timers_.end()) {
            const auto timer = found->second; // kept, as its block may invalidate it
            timer->peer().block();
        }
    }

  private:
    std::map<int, std::shared_ptr<Timer>> timers_;
};

} // namespace

Timer::Timer(std::unique_ptr<Peer> peer) : peer_(std::move(peer)) {}

Timer::~Timer() = default;

std::shared_ptr<Timer> Timer::repeatingTimer(Interval interval, std::function<void()> block) {
    return std::make_shared<Timer>(std::make_unique<Peer>(
        Peer{.milliseconds = wholeMilliseconds(interval), .block = std::move(block)}));
}

std::shared_ptr<Timer> Timer::scheduledRepeatingTimer(Interval interval,
                                                      std::function<void()> block) {
    auto timer = repeatingTimer(interval, std::move(block));
    addTimerToMainRunLoop(timer, RunLoopMode::defaultMode);
    return timer;
}

void Timer::invalidate() {
    const TimerState before = std::exchange(peer_->state, TimerState::invalid);
    if (before == TimerState::scheduled) {
        RunLoopTimers::shared().remove(peer_->id); // this may have been the last owner
    }
}

void addTimerToMainRunLoop(const std::shared_ptr<Timer>& timer, RunLoopMode) {
    Timer::Peer& peer = timer->peer();
    if (peer.state == TimerState::idle) {
        peer.id = RunLoopTimers::shared().add(timer);
        peer.state = TimerState::scheduled;
    }
}

} // namespace platform
