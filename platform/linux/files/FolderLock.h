#pragma once

#include "platform/linux/files/FileDescriptor.h"

#include <filesystem>

namespace platform::linux_host {

/// Keeps other instances of the program from writing in the folder (flock), so that a change of
/// theirs is not overwritten by one that was read before it. Best effort: where the folder cannot
/// be locked, or somebody holds the lock for a second, the work goes on without.
class FolderLock {
  public:
    explicit FolderLock(const std::filesystem::path& folder);

  private:
    FileDescriptor folder_; // closing it lets go
};

} // namespace platform::linux_host
