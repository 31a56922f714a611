#include "platform/simulated/Clock.h"

#include "platform/simulated/Desktop.h"
#include "platform/simulated/Misuse.h"

namespace simulated {
namespace {

void requireForward(Clock::Duration duration) {
    if (duration < Clock::Duration::zero()) {
        misuse("the clock is turned back");
    }
}

} // namespace

void Clock::advance(Duration duration) {
    requireForward(duration);
    uptime_ += duration;
    setWallClockBy(duration);
}

void Clock::sleep(Duration duration) {
    requireForward(duration);
    setWallClockBy(duration);
}

void Clock::setWallClockBy(Duration duration) {
    wallTime_ = wallTime_ + std::chrono::duration<double>(duration).count();
}

} // namespace simulated

platform::Date platform::Date::now() {
    return simulated::desktop().clock.wallTime();
}
