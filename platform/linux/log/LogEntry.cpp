#include "platform/linux/log/LogEntry.h"

#include "platform/linux/files/FileDescriptor.h"

#include <algorithm>
#include <climits>
#include <cstdint>
#include <poll.h>
#include <string>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace platform::linux_host {
namespace {

// A field in the form that may hold line breaks: the name, the length as 64 bits with the lowest
// byte first, the value. An empty field is left out.
void appendField(std::string& datagram, std::string_view name, std::string_view value) {
    if (value.empty()) {
        return;
    }
    datagram.append(name).push_back('\n');
    for (unsigned shift = 0; shift < 64; shift += 8) {
        datagram.push_back(static_cast<char>(std::uint64_t{value.size()} >> shift & 0xff));
    }
    datagram.append(value).push_back('\n');
}

std::string datagramOf(const LogEntry& entry) {
    std::string datagram;
    appendField(datagram, "MESSAGE", entry.text);
    appendField(datagram, "PRIORITY", std::to_string(static_cast<int>(entry.priority)));
    appendField(datagram, "SYSLOG_IDENTIFIER", "quellbar");
    appendField(datagram, "SUBSYSTEM", entry.subsystem);
    appendField(datagram, "CATEGORY", entry.category);
    return datagram;
}

std::string lineOf(const LogEntry& entry) {
    std::string line;
    if (!entry.subsystem.empty() || !entry.category.empty()) {
        line.append("[").append(entry.subsystem).append(":").append(entry.category).append("] ");
    }
    line.append(entry.text);
    line.resize(std::min<std::size_t>(line.size(), PIPE_BUF - 1));
    const auto isControl = [](unsigned char byte) { return byte < 0x20 || byte == 0x7f; };
    std::ranges::replace_if(line, isControl, ' ');
    line.push_back('\n');
    return line;
}

// Ready means more than open: a pipe is ready when it takes PIPE_BUF bytes at once, and one without
// a reader, which would answer a write with SIGPIPE, reports an error as well.
bool isReadyForWriting(int descriptor) {
    pollfd state{.fd = descriptor, .events = POLLOUT, .revents = 0};
    return ::poll(&state, 1, 0) == 1 && state.revents == POLLOUT;
}

} // namespace

// sd_journal_send is not used because it waits while the journal's queue is full, and because it
// reports success where there is no journal.
bool sendToJournal(const LogEntry& entry, std::string_view socketPath) {
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    if (socketPath.size() >= sizeof address.sun_path) {
        return false;
    }
    std::ranges::copy(socketPath, std::begin(address.sun_path));
    const FileDescriptor socket(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0));
    const std::string datagram = datagramOf(entry);
    return ::sendto(socket.get(), datagram.data(), datagram.size(), MSG_DONTWAIT | MSG_NOSIGNAL,
                    reinterpret_cast<const sockaddr*>(&address), sizeof address) >= 0;
}

void writeToStandardError(const LogEntry& entry) {
    const std::string line = lineOf(entry);
    if (isReadyForWriting(STDERR_FILENO)) {
        // What could be done about a failure would be to log it.
        [[maybe_unused]] const auto written = ::write(STDERR_FILENO, line.data(), line.size());
    }
}

} // namespace platform::linux_host
