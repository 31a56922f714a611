#pragma once

#include "platform/Geometry.h"

#include <filesystem>
#include <memory>

namespace platform {

/// A picture. Handed around as a `std::shared_ptr`, null where there is none; the object may be
/// shared with the desktop's own caches. Stands for NSImage on macOS, QIcon's images on Linux.
class Image {
  public:
    /// Loads an image file; null when there is none or it cannot be read. A file whose name ends in
    /// "@2x" before the suffix, beside the named one, serves high-resolution screens.
    [[nodiscard]] static std::shared_ptr<Image>
    withContentsOfFile(const std::filesystem::path& file);

    /// Whether the image is a mask that is drawn in the colour of its surroundings.
    [[nodiscard]] bool isTemplate() const;
    void setTemplate(bool isTemplate);

    /// In points.
    [[nodiscard]] Size size() const;

    struct Peer;
    explicit Image(std::unique_ptr<Peer> peer);
    ~Image();
    Image(const Image&) = delete;
    Image& operator=(const Image&) = delete;
    [[nodiscard]] Peer& peer() const { return *peer_; }

  private:
    std::unique_ptr<Peer> peer_;
};

} // namespace platform
