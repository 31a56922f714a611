#include "platform/linux/application/LoopSleep.h"

#include "platform/linux/timers/RunLoopTimers.h"
#include "platform/linux/x11/Connection.h"

#include <QAbstractEventDispatcher>
#include <QBasicTimer>
#include <QCoreApplication>
#include <QTimerEvent>
#include <algorithm>
#include <glib.h>
#include <poll.h>

namespace platform::linux_host {

namespace {

using Clock = RunLoopTimers::Clock;
using std::chrono::nanoseconds;

Connection* theConnection = nullptr;

constexpr auto never = Clock::time_point::max();

int waitUntil(Clock::time_point end, Clock::time_point now, pollfd* descriptors, nfds_t count) {
    if (end == never) {
        return ::ppoll(descriptors, count, nullptr, nullptr);
    }
    const nanoseconds rest = std::max<nanoseconds>(end - now, nanoseconds::zero());
    const auto seconds = std::chrono::floor<std::chrono::seconds>(rest);
    const timespec limit{.tv_sec = seconds.count(), .tv_nsec = (rest - seconds).count()};
    return ::ppoll(descriptors, count, &limit, nullptr);
}

// Whether the loop has to turn. What a block leaves to Qt wakes the loop by itself, but for a timer
// of Qt's own; and those are started by what X events tell, and by what happens once a second in
// the default mode, never by the poll of the corners.
bool fireDue(RunLoopTimers& timers, Clock::time_point now) {
    const bool hasFiredDefaultMode = timers.fireDue(now);
    return theConnection->finishTurn() || hasFiredDefaultMode;
}

// GLib's sleep, for at most `timeout` milliseconds (negative: without end), with our timers in it.
// A GPollFD is laid out as the system's own. The clock is read once a round: whoever wakes because
// the time is over knows what time it is.
gint sleepAndFire(GPollFD* descriptors, guint count, gint timeout) {
    RunLoopTimers& timers = RunLoopTimers::shared();
    Clock::time_point now = Clock::now();
    const auto end = timeout < 0 ? never : now + std::chrono::milliseconds{timeout};
    while (true) {
        const auto deadline = timers.nextDeadline().value_or(never);
        const auto wakeUp = std::min(end, deadline);
        const int ready = waitUntil(wakeUp, now, reinterpret_cast<pollfd*>(descriptors), count);
        if (ready == 0) {
            now = std::max(now, wakeUp);
        }
        const bool hasToTurn = deadline <= now && fireDue(timers, now);
        if (ready != 0 || hasToTurn || end <= now) {
            return ready;
        }
        now = Clock::now();
    }
}

// Where Qt does without GLib: a timer of Qt's, set anew whenever the loop is about to wait.
class QtAlarm : public QObject {
  public:
    explicit QtAlarm(QAbstractEventDispatcher& loop) : QObject(&loop) {
        connect(&loop, &QAbstractEventDispatcher::aboutToBlock, this, [this] { set(); });
    }

  protected:
    void timerEvent(QTimerEvent*) override {
        alarm_.stop();
        RunLoopTimers::shared().fireDue(Clock::now());
    }

  private:
    void set() {
        const auto deadline = RunLoopTimers::shared().nextDeadline();
        if (!deadline) {
            alarm_.stop();
            return;
        }
        const auto rest = std::chrono::ceil<std::chrono::milliseconds>(*deadline - Clock::now());
        alarm_.start(static_cast<int>(std::clamp<long long>(rest.count(), 0, INT_MAX)),
                     Qt::PreciseTimer, this);
    }

    QBasicTimer alarm_;
};

} // namespace

void fireTimersFromEventLoop(Connection& connection) {
    theConnection = &connection;
    QAbstractEventDispatcher* const loop = QCoreApplication::eventDispatcher();
    if (loop->inherits("QEventDispatcherGlib")) {
        g_main_context_set_poll_func(nullptr, sleepAndFire);
    } else {
        new QtAlarm(*loop); // the loop owns it
    }
}

} // namespace platform::linux_host
