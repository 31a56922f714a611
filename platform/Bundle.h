#pragma once

#include "platform/Image.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string_view>

namespace platform {

/// A folder of resources: the program as it is installed, or a folder that ends in ".bundle".
/// Stands for NSBundle on macOS; on Linux the main bundle is the folder of the executable.
class Bundle {
  public:
    /// The program's own bundle; lives until the process ends.
    static Bundle& main();

    /// The bundle at `path`; null when no folder is there.
    [[nodiscard]] static std::shared_ptr<Bundle> withPath(const std::filesystem::path& path);

    /// The reverse-DNS name of the program (on Linux its application id); empty on macOS when the
    /// program runs outside a bundle.
    [[nodiscard]] std::string_view bundleIdentifier() const;

    /// Where the bundle is, as an absolute path.
    [[nodiscard]] std::filesystem::path bundlePath() const;

    /// The desktop's own look-up of an image by its name without suffix; null when there is none.
    [[nodiscard]] std::shared_ptr<Image> imageForResource(std::string_view name) const;

    /// The file of a resource, at the bundle's top level or in one of its folders; empty when there
    /// is none.
    [[nodiscard]] std::optional<std::filesystem::path>
    fileForResource(std::string_view name, std::string_view extension,
                    std::string_view subdirectory = {}) const;

    struct Peer;
    explicit Bundle(std::unique_ptr<Peer> peer);
    ~Bundle();
    Bundle(const Bundle&) = delete;
    Bundle& operator=(const Bundle&) = delete;

  private:
    std::unique_ptr<Peer> peer_;
};

} // namespace platform
