#pragma once

#include "platform/linux/files/FileDescriptor.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <sys/stat.h>

/// Changing files so that whoever reads one finds the old content or the new, and a failure leaves
/// the old. Failures are thrown as std::system_error.
namespace platform::linux_host {

/// Where writing to the path would end: the path itself, or what its symbolic links lead to, also
/// when nothing is there.
[[nodiscard]] std::filesystem::path linkTarget(std::filesystem::path path);

/// Makes the folder and those above it, for the user alone. Folders that exist stay as they are.
void createFolders(const std::filesystem::path& folder);

/// Renames the file, if it is there, to the first free name of "<file>.bad", "<file>.bad.2" and so
/// on.
void setAside(const std::filesystem::path& file);

/// The new content of a file, kept beside it until it takes its place.
class FileReplacement {
  public:
    /// Makes the file for the new content, for the user alone. The destination is no link.
    explicit FileReplacement(std::filesystem::path destination);
    /// Leaves nothing behind unless `commit` has succeeded.
    ~FileReplacement();
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    /// Writes the content through to the disk. Called once.
    void write(std::string_view content) const;

    /// What `stat` says of the new content, before and after it has taken its place.
    [[nodiscard]] struct stat status() const;

    void commit();

  private:
    std::filesystem::path destination_;
    std::string temporary_; // empty after commit
    FileDescriptor descriptor_;
};

} // namespace platform::linux_host
