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

// Kept as a whole number and rounded once, here, so that many small steps add up to exactly the
// time of one long one.
platform::Date Clock::wallTime() const {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(wallTime_);
    const std::chrono::duration<double> fraction = wallTime_ - seconds;
    return {static_cast<double>(seconds.count()) + fraction.count()};
}

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
    wallTime_ += duration;
}

} // namespace simulated

platform::Date platform::Date::now() {
    return simulated::desktop().clock.wallTime();
}
