#include "platform/View.h"

#include "platform/macos/Conversions.h"
#include "platform/macos/ViewPeer.h"

// What a view does that overrides nothing: what AppKit's does.
namespace platform {

bool View::acceptsFirstResponder() const {
    if (peer_->forwarder.get() == nil) {
        return peer_->view.get().acceptsFirstResponder == YES;
    }
    return [peer_->forwarder.get() superAcceptsFirstResponder] == YES;
}

void View::viewDidMoveToWindow() {
    [peer_->forwarder.get() superViewDidMoveToWindow];
}

void View::updateTrackingAreas() {
    [peer_->forwarder.get() superUpdateTrackingAreas];
}

void View::mouseEntered(const Event&) {
    [peer_->forwarder.get() superMouseEntered];
}

void View::mouseExited(const Event&) {
    [peer_->forwarder.get() superMouseExited];
}

void View::mouseUp(const Event&) {
    [peer_->forwarder.get() superMouseUp];
}

void View::keyDown(const Event&) {
    [peer_->forwarder.get() superKeyDown];
}

void View::draw(Rect dirtyRect) {
    [peer_->forwarder.get() superDrawRect:macos::rectToNSRect(dirtyRect)];
}

} // namespace platform
