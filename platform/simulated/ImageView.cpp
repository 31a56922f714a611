#include "platform/simulated/ImageView.h"

#include "platform/simulated/Desktop.h"
#include "platform/simulated/Text.h"

namespace simulated {

ImageView& stateOf(const platform::ImageView& view) {
    return static_cast<ImageView&>(*view.peer().view);
}

} // namespace simulated

namespace platform {

using simulated::desktop;

ImageView::ImageView(std::unique_ptr<Peer> peer) : View(std::move(peer)) {}

std::shared_ptr<ImageView> ImageView::withFrame(Rect frame) {
    desktop().calls.record("ImageView::withFrame", {simulated::text(frame)});
    return std::make_shared<ImageView>(
        std::make_unique<Peer>(Peer{std::make_unique<simulated::ImageView>(frame)}));
}

void ImageView::setImage(std::shared_ptr<Image> image) {
    desktop().calls.record("ImageView::setImage", {simulated::nameOf(image.get())});
    simulated::stateOf(*this).image = std::move(image);
}

} // namespace platform
