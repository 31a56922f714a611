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

// Far enough off to be never.
Clock::time_point endOf(int milliseconds) {
    return milliseconds < 0 ? Clock::time_point::max()
                            : Clock::now() + std::chrono::milliseconds{milliseconds};
}

int waitUntil(Clock::time_point end, pollfd* descriptors, nfds_t count) {
    if (end == Clock::time_point::max()) {
        return ::ppoll(descriptors, count, nullptr, nullptr);
    }
    const nanoseconds rest = std::max<nanoseconds>(end - Clock::now(), nanoseconds::zero());
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
// A GPollFD is laid out as the system's own.
gint sleepAndFire(GPollFD* descriptors, guint count, gint timeout) {
    RunLoopTimers& timers = RunLoopTimers::shared();
    const Clock::time_point end = endOf(timeout);
    while (true) {
        const auto deadline = timers.nextDeadline().value_or(Clock::time_point::max());
        const int ready =
            waitUntil(std::min(end, deadline), reinterpret_cast<pollfd*>(descriptors), count);
        const auto now = Clock::now();
        const bool hasToTurn = deadline <= now && fireDue(timers, now);
        if (ready != 0 || hasToTurn || end <= now) {
            return ready;
        }
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
