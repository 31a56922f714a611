#pragma once

#include <cstdint>
#include <sys/stat.h>

namespace platform::linux_host {

/// What tells one content of a file from another without reading it.
class FileIdentity {
  public:
    explicit FileIdentity(const struct stat& status)
        : device_(status.st_dev), inode_(status.st_ino), size_(status.st_size),
          seconds_(status.st_mtim.tv_sec), nanoseconds_(status.st_mtim.tv_nsec) {}

    bool operator==(const FileIdentity&) const = default;

    /// Whether another change would show. The clock of a file system ticks every few milliseconds,
    /// so two changes within one tick may look alike.
    [[nodiscard]] bool isSettled() const;

  private:
    dev_t device_;
    ino_t inode_;
    off_t size_;
    std::int64_t seconds_;
    std::int64_t nanoseconds_;
};

} // namespace platform::linux_host
