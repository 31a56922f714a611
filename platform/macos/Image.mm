#include "platform/Image.h"

#include "platform/macos/Conversions.h"
#include "platform/macos/ImagePeer.h"

namespace platform {

using macos::Object;

std::shared_ptr<Image> macos::nsImageToImage(NSImage* image) {
    if (image == nil) {
        return nullptr;
    }
    return std::make_shared<Image>(
        std::make_unique<Image::Peer>(Image::Peer{Object<NSImage*>::share(image)}));
}

NSImage* macos::imageToNSImage(const std::shared_ptr<Image>& image) {
    return image ? image->peer().image.get() : nil;
}

std::shared_ptr<Image> Image::withContentsOfFile(const std::filesystem::path& file) {
    NSURL* const url = [NSURL fileURLWithPath:macos::pathToNSString(file).get()];
    const auto image = Object<NSImage*>::adopt([[NSImage alloc] initWithContentsOfURL:url]);
    return macos::nsImageToImage(image.get());
}

Image::Image(std::unique_ptr<Peer> peer) : peer_(std::move(peer)) {}

Image::~Image() = default;

bool Image::isTemplate() const {
    return [peer_->image.get() isTemplate] == YES;
}

void Image::setTemplate(bool isTemplate) {
    [peer_->image.get() setTemplate:isTemplate];
}

Size Image::size() const {
    return macos::nsSizeToSize(peer_->image.get().size);
}

} // namespace platform
