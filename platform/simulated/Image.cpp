#include "platform/simulated/Image.h"

#include "platform/simulated/Desktop.h"

struct platform::Image::Peer {
    simulated::Image image;
};

namespace simulated {

const Image& stateOf(const platform::Image& image) {
    return image.peer().image;
}

std::shared_ptr<platform::Image> loadImage(const std::filesystem::path& file) {
    const std::string* const content = desktop().files.contentOf(file);
    const auto size = content == nullptr ? std::nullopt : sizeOfPng(*content);
    if (!size) {
        return nullptr;
    }
    return std::make_shared<platform::Image>(
        std::make_unique<platform::Image::Peer>(platform::Image::Peer{{file, *size}}));
}

std::string nameOf(const platform::Image* image) {
    return image == nullptr ? "none" : stateOf(*image).file.stem().string();
}

} // namespace simulated

namespace platform {

using simulated::desktop;

Image::Image(std::unique_ptr<Peer> peer) : peer_(std::move(peer)) {}
Image::~Image() = default;

std::shared_ptr<Image> Image::withContentsOfFile(const std::filesystem::path& file) {
    desktop().calls.record("Image::withContentsOfFile", {file.string()});
    return simulated::loadImage(file);
}

bool Image::isTemplate() const {
    return peer_->image.isTemplate;
}

void Image::setTemplate(bool isTemplate) {
    desktop().calls.record("setTemplate", {simulated::nameOf(this), isTemplate ? "true" : "false"});
    peer_->image.isTemplate = isTemplate;
}

Size Image::size() const {
    return peer_->image.size;
}

} // namespace platform
