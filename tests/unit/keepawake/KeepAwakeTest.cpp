#include "unit/keepawake/KeepAwakeTest.h"

#include "settings/Preferences.h"

#include <ostream>
#include <sstream>

using simulated::desktop;

void PrintTo(const Report& report, std::ostream* stream) {
    *stream << (report.isActive ? "running(" : "inactive(") << report.remaining << ")";
}

void Observer::keepAwakeDidChangeState(bool active, double remaining) {
    reports.push_back({active, remaining});
    std::ostringstream seconds;
    seconds << remaining;
    desktop().calls.record("keepAwakeDidChangeState", {active ? "true" : "false", seconds.str()});
}

KeepAwakeTest::KeepAwakeTest() {
    desktop().clock.setWallClockBy(-std::chrono::seconds(800'000'000));
    Preferences::shared();
    manager.delegate = observer;
    forget();
}

void KeepAwakeTest::pass(simulated::Clock::Duration duration) {
    desktop().runLoop.run(duration);
}

void KeepAwakeTest::forget() {
    desktop().calls.clear();
    observer->reports.clear();
}

void KeepAwakeTest::startAndForget(double duration) {
    manager.start(duration);
    forget();
}

bool KeepAwakeTest::displayStaysAwake() {
    return desktop().powerAssertions.displayStaysAwake();
}
