#include "StandardError.h"

#include <array>
#include <fcntl.h>
#include <stdexcept>
#include <unistd.h>

using platform::linux_host::FileDescriptor;

StandardError::StandardError() : original_(::dup(STDERR_FILENO)) {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
        throw std::runtime_error("no pipe");
    }
    reading_ = FileDescriptor(ends[0]);
    const FileDescriptor writing(ends[1]);
    ::dup2(writing.get(), STDERR_FILENO);
    ::fcntl(reading_.get(), F_SETFL, O_NONBLOCK);
}

StandardError::~StandardError() {
    ::dup2(original_.get(), STDERR_FILENO);
}

std::string StandardError::text() const {
    std::string text;
    std::array<char, 4096> part{};
    for (ssize_t size = 0; (size = ::read(reading_.get(), part.data(), part.size())) > 0;) {
        text.append(part.data(), static_cast<std::size_t>(size));
    }
    return text;
}

std::string StandardError::fill() const {
    const FileDescriptor writing(::dup(STDERR_FILENO));
    ::fcntl(writing.get(), F_SETFL, O_NONBLOCK);
    std::string filling;
    while (::write(writing.get(), "x", 1) == 1) {
        filling.push_back('x');
    }
    // The mode belongs to the open pipe, not to the copy: back to a pipe that lets writers wait.
    ::fcntl(writing.get(), F_SETFL, 0);
    return filling;
}
