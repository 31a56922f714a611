#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>

namespace simulated {

/// The files that this program can see: those that a test has put there. No file of the machine is
/// among them. Paths are absolute.
class Files {
  public:
    /// Adds a folder and those that it lies in.
    void addFolder(const std::filesystem::path& folder);
    /// Adds a file, or changes what is in it, and adds the folders that it lies in.
    void addFile(const std::filesystem::path& file, std::string content);
    /// Takes away a file, or a folder with all that lies in it. Misuse when there is none.
    void remove(const std::filesystem::path& path);

    [[nodiscard]] bool contains(const std::filesystem::path& path) const;
    [[nodiscard]] bool isFolder(const std::filesystem::path& path) const;
    /// What is in the file; null when there is none, or a folder in its place.
    [[nodiscard]] const std::string* contentOf(const std::filesystem::path& path) const;

  private:
    // A folder has no content.
    std::map<std::filesystem::path, std::optional<std::string>> entries_;
};

} // namespace simulated
