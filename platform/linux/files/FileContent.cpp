#include "platform/linux/files/FileContent.h"

#include "platform/linux/files/FileDescriptor.h"
#include "platform/linux/files/SystemError.h"

#include <algorithm>
#include <array>
#include <fcntl.h>

namespace platform::linux_host {
namespace {

std::string textOf(int descriptor, std::size_t mostBytes) {
    std::string text;
    std::array<char, 4096> part{};
    while (text.size() < mostBytes) {
        const std::size_t wanted = std::min(part.size(), mostBytes - text.size());
        const ssize_t size = ::read(descriptor, part.data(), wanted);
        check(size >= 0 || errno == EINTR);
        if (size == 0) {
            break;
        }
        text.append(part.data(), size > 0 ? static_cast<std::size_t>(size) : 0);
    }
    return text;
}

} // namespace

void requireRegularFile(const struct stat& status) {
    if (!S_ISREG(status.st_mode)) {
        throw std::system_error(std::make_error_code(S_ISDIR(status.st_mode)
                                                         ? std::errc::is_a_directory
                                                         : std::errc::operation_not_supported));
    }
}

FileContent readFile(const std::filesystem::path& path, std::size_t mostBytes) {
    // Not blocking, in case that the file has just been exchanged for a pipe.
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    check(static_cast<bool>(file));
    struct stat status {};
    check(::fstat(file.get(), &status) == 0);
    requireRegularFile(status);
    return {textOf(file.get(), mostBytes), FileIdentity(status)};
}

} // namespace platform::linux_host
