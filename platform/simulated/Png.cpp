#include "platform/simulated/Image.h"

#include <cstdint>

namespace simulated {
namespace {

constexpr std::string_view signature = "\x89PNG\r\n\x1a\n";

// Eight-bit grey, nothing interlaced.
constexpr std::string_view formatOfHeader("\x08\x00\x00\x00\x00", 5);

constexpr std::size_t headerLength = 13;
constexpr std::size_t chunkOverhead = 12; // length, type and checksum, four bytes each

std::string bigEndian(std::uint32_t number) {
    std::string bytes;
    for (const int shift : {24, 16, 8, 0}) {
        bytes += static_cast<char>(number >> shift & 0xFF);
    }
    return bytes;
}

std::uint32_t bigEndian(std::string_view bytes) {
    std::uint32_t number = 0;
    for (const char byte : bytes.substr(0, 4)) {
        number = number << 8 | static_cast<unsigned char>(byte);
    }
    return number;
}

// The checksum is not made, and not looked at.
std::string chunk(std::string_view type, std::string_view data) {
    return bigEndian(static_cast<std::uint32_t>(data.size())).append(type).append(data) +
           bigEndian(0);
}

struct Chunk {
    std::string_view type;
    std::string_view data;
};

// Takes the next chunk off the content; empty when that ends too early.
std::optional<Chunk> takeChunk(std::string_view& content) {
    if (content.size() < chunkOverhead || content.size() - chunkOverhead < bigEndian(content)) {
        return std::nullopt;
    }
    const std::size_t length = bigEndian(content);
    const Chunk chunk{content.substr(4, 4), content.substr(8, length)};
    content.remove_prefix(length + chunkOverhead);
    return chunk;
}

bool isWholeFromHere(std::string_view content) {
    bool hasPicture = false;
    while (const auto chunk = takeChunk(content)) {
        hasPicture = hasPicture || chunk->type == "IDAT";
        if (chunk->type == "IEND") {
            return hasPicture;
        }
    }
    return false;
}

} // namespace

std::string pngFile(int width, int height) {
    std::string header = bigEndian(static_cast<std::uint32_t>(width));
    header += bigEndian(static_cast<std::uint32_t>(height));
    header += formatOfHeader;
    return std::string(signature) + chunk("IHDR", header) + chunk("IDAT", "") + chunk("IEND", "");
}

std::optional<platform::Size> sizeOfPng(std::string_view content) {
    if (!content.starts_with(signature)) {
        return std::nullopt;
    }
    content.remove_prefix(signature.size());
    const auto header = takeChunk(content);
    if (!header || header->type != "IHDR" || header->data.size() != headerLength ||
        !isWholeFromHere(content)) {
        return std::nullopt;
    }
    const platform::Size size{static_cast<double>(bigEndian(header->data)),
                              static_cast<double>(bigEndian(header->data.substr(4)))};
    return size.width > 0 && size.height > 0 ? std::optional(size) : std::nullopt;
}

} // namespace simulated
