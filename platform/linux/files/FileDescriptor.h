#pragma once

#include <unistd.h>
#include <utility>

namespace platform::linux_host {

/// Owns an open file descriptor, or none.
class FileDescriptor {
  public:
    FileDescriptor() = default;
    /// Takes over what `open` and its like answer; a negative number is none.
    explicit FileDescriptor(int descriptor) : descriptor_(descriptor) {}
    FileDescriptor(FileDescriptor&& other) noexcept
        : descriptor_(std::exchange(other.descriptor_, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(descriptor_, other.descriptor_);
        return *this;
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    ~FileDescriptor() {
        if (*this) {
            ::close(descriptor_);
        }
    }

    explicit operator bool() const { return descriptor_ >= 0; }
    [[nodiscard]] int get() const { return descriptor_; }

  private:
    int descriptor_ = -1;
};

} // namespace platform::linux_host
