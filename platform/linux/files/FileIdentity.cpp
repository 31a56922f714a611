#include "platform/linux/files/FileIdentity.h"

#include <ctime>

namespace platform::linux_host {

bool FileIdentity::isSettled() const {
    constexpr double longestTick = 0.02; // seconds; Linux ticks 100 to 1000 times a second
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    // In floating point, because a file may claim any time, and the difference must not overflow.
    const double age = static_cast<double>(now.tv_sec) - static_cast<double>(seconds_) +
                       static_cast<double>(now.tv_nsec - nanoseconds_) * 1e-9;
    return age < 0 || age > longestTick;
}

} // namespace platform::linux_host
