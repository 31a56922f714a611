#include "platform/linux/files/FolderLock.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <thread>

namespace platform::linux_host {
namespace {

constexpr std::chrono::milliseconds pause{5};
constexpr int mostAttempts = 200;

bool isHeldBySomebody(const FileDescriptor& folder) {
    return ::flock(folder.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

} // namespace

FolderLock::FolderLock(const std::filesystem::path& folder)
    : folder_(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    for (int attempt = 1; isHeldBySomebody(folder_) && attempt < mostAttempts; ++attempt) {
        std::this_thread::sleep_for(pause);
    }
}

} // namespace platform::linux_host
