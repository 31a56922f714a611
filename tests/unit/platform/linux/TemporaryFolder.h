#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

/// A folder of its own, open to every user of the machine, that is gone with its content at the
/// end.
class TemporaryFolder {
  public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

    /// Overwrites the file in place or makes it and the folders above it; its time is set back, so
    /// that it counts as settled.
    void write(const std::filesystem::path& name, std::string_view text) const;
    [[nodiscard]] std::string read(const std::filesystem::path& name) const;
    /// The names in the folder, sorted.
    [[nodiscard]] std::vector<std::string> names() const;

  private:
    std::filesystem::path path_;
};

/// The permission bits of a file or folder, as in 0644.
[[nodiscard]] unsigned modeOf(const std::filesystem::path& path);
