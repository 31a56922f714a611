#include "tests/desktop/support/Deadline.h"

#include <poll.h>

#include <algorithm>
#include <cerrno>
#include <limits>
#include <system_error>
#include <thread>

namespace desktop {

int Deadline::pollTimeout() const {
    using std::chrono::milliseconds;
    const auto left =
        std::chrono::ceil<milliseconds>(moment_ - std::chrono::steady_clock::now()).count();
    return static_cast<int>(
        std::clamp<milliseconds::rep>(left, 0, std::numeric_limits<int>::max()));
}

bool waitUntilReadable(int descriptor, const Deadline& deadline) {
    pollfd polled{.fd = descriptor, .events = POLLIN, .revents = 0};
    while (true) {
        const int ready = poll(&polled, 1, deadline.pollTimeout());
        if (ready >= 0) {
            return ready > 0;
        }
        if (errno != EINTR) {
            throw std::system_error(errno, std::generic_category(), "poll");
        }
    }
}

void waitUntil(const std::function<bool()>& isSo, const std::string& what,
               const Deadline& deadline) {
    using namespace std::chrono_literals;
    for (auto pause = 1ms; !isSo(); pause = std::min(2 * pause, 32ms)) {
        if (deadline.hasPassed()) {
            throw TimedOut(what);
        }
        std::this_thread::sleep_for(pause);
    }
}

} // namespace desktop
