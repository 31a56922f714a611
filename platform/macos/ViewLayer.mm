#include "platform/View.h"

#include "platform/macos/AppearanceConversions.h"
#include "platform/macos/ViewPeer.h"

#import <QuartzCore/QuartzCore.h>

namespace platform {

// The layer is there as soon as it is wanted.
void View::setWantsLayer() {
    peer_->view.get().wantsLayer = YES;
}

void View::setLayerCornerRadius(double points) {
    peer_->view.get().layer.cornerRadius = points;
}

void View::setLayerBorderWidth(double points) {
    peer_->view.get().layer.borderWidth = points;
}

void View::setLayerBackgroundColor(CGColor color) {
    peer_->view.get().layer.backgroundColor = macos::cgColorToCGColorRef(color).get();
}

void View::setLayerBorderColor(CGColor color) {
    peer_->view.get().layer.borderColor = macos::cgColorToCGColorRef(color).get();
}

} // namespace platform
