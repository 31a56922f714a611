#include "platform/simulated/Clock.h"

#include "platform/simulated/Misuse.h"

namespace simulated {

void Clock::advance(Duration duration) {
    if (duration < Duration::zero()) {
        misuse("the clock is turned back");
    }
    uptime_ += duration;
}

} // namespace simulated
