#include "platform/linux/application/Signals.h"

#include <cerrno>
#include <csignal>
#include <cstdint>
#include <sys/eventfd.h>
#include <unistd.h>

namespace platform::linux_host {

namespace {

int wakeUp = -1;

extern "C" void handleTerminationSignal(int) {
    const int savedErrno = errno;
    const std::uint64_t one = 1;
    [[maybe_unused]] const ssize_t written = ::write(wakeUp, &one, sizeof one);
    errno = savedErrno;
}

void setHandler(int signal, void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    ::sigemptyset(&action.sa_mask);
    ::sigaction(signal, &action, nullptr);
}

// As under nohup, which asks for the program to outlive its terminal.
bool isIgnored(int signal) {
    struct sigaction action {};
    return ::sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

} // namespace

int catchTerminationSignals() {
    wakeUp = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    setHandler(SIGPIPE, SIG_IGN);
    if (wakeUp < 0) {
        return wakeUp;
    }
    setHandler(SIGTERM, handleTerminationSignal);
    setHandler(SIGINT, handleTerminationSignal);
    if (!isIgnored(SIGHUP)) {
        setHandler(SIGHUP, handleTerminationSignal);
    }
    return wakeUp;
}

} // namespace platform::linux_host
