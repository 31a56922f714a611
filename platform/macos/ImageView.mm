#include "platform/ImageView.h"

#include "platform/macos/Conversions.h"
#include "platform/macos/ImagePeer.h"
#include "platform/macos/ViewPeer.h"

namespace platform {

std::shared_ptr<ImageView> ImageView::withFrame(Rect frame) {
    const auto native = macos::Object<NSImageView*>::adopt(
        [[NSImageView alloc] initWithFrame:macos::rectToNSRect(frame)]);
    return std::make_shared<ImageView>(std::make_unique<Peer>(native.get()));
}

ImageView::ImageView(std::unique_ptr<Peer> peer) : View(std::move(peer)) {}

void ImageView::setImage(std::shared_ptr<Image> image) {
    macos::controlOf<NSImageView>(*this).image = macos::imageToNSImage(image);
}

} // namespace platform
