#include "tests/desktop/support/Channel.h"

#include <sys/socket.h>

#include <array>
#include <cerrno>
#include <string_view>
#include <system_error>

namespace desktop {

// A pair of sockets rather than two pipes: a socket can be written to without the signal that a
// broken pipe raises.
Channel::Channel() {
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        throw std::system_error(errno, std::generic_category(), "socketpair");
    }
    nearEnd_ = FileDescriptor(ends[0]);
    farEnd_ = FileDescriptor(ends[1]);
}

void Channel::send(const std::string& line) {
    const std::string text = line + "\n";
    std::string_view rest = text;
    while (!rest.empty()) {
        const ssize_t count = ::send(nearEnd_.number(), rest.data(), rest.size(), MSG_NOSIGNAL);
        if (count < 0) {
            throw std::system_error(errno, std::generic_category(), "send");
        }
        rest.remove_prefix(static_cast<std::size_t>(count));
    }
}

std::string Channel::nextLine(const Deadline& deadline) {
    while (true) {
        if (const auto end = unread_.find('\n'); end != std::string::npos) {
            std::string line = unread_.substr(0, end);
            unread_.erase(0, end + 1);
            return line;
        }
        readMore(deadline);
    }
}

void Channel::readMore(const Deadline& deadline) {
    if (!waitUntilReadable(nearEnd_.number(), deadline)) {
        throw TimedOut("a line from another process");
    }
    std::array<char, 4096> buffer{};
    const ssize_t count = recv(nearEnd_.number(), buffer.data(), buffer.size(), 0);
    if (count <= 0) {
        throw ChannelClosed(unread_);
    }
    unread_.append(buffer.data(), static_cast<std::size_t>(count));
}

} // namespace desktop
