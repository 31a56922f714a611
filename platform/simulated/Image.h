#pragma once

#include "platform/Image.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace simulated {

/// What the desktop knows of an image that the program has loaded.
struct Image {
    std::filesystem::path file;
    platform::Size size;
    bool isTemplate = false;
};

/// What the desktop knows of `image`.
[[nodiscard]] const Image& stateOf(const platform::Image& image);

/// For the seam: the image in a file, or null.
[[nodiscard]] std::shared_ptr<platform::Image> loadImage(const std::filesystem::path& file);

/// How an image, which may be null, is written in the record of calls.
[[nodiscard]] std::string nameOf(const platform::Image* image);

/// The content of a PNG file of this size, in pixels. It has every part that such a file needs, but
/// no picture: nobody looks at the pixels here.
[[nodiscard]] std::string pngFile(int width, int height);

/// The size of the picture in a PNG file, a point for each pixel; empty when the content is not
/// that of a whole PNG file.
[[nodiscard]] std::optional<platform::Size> sizeOfPng(std::string_view content);

} // namespace simulated
