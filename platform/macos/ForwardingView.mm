#include "platform/macos/ForwardingView.h"

#include "platform/macos/CallOut.h"
#include "platform/macos/Conversions.h"

using platform::Event;
using platform::View;
using platform::macos::callOut;
using platform::macos::nsKeyEventToEvent;
using platform::macos::nsMouseEventToEvent;
using platform::macos::nsRectToRect;

namespace {

using EventHandler = void (View::*)(const Event&);

// Held while the view is called: it may lose its last owner by what it does.
std::shared_ptr<View> hold(View* view) {
    return view != nullptr ? view->weak_from_this().lock() : nullptr;
}

} // namespace

@implementation QuellbarView {
    View* view_;     // null when it is gone
    NSEvent* event_; // while it is being handed on
}

- (instancetype)initWithFrame:(NSRect)frame view:(View*)view {
    self = [super initWithFrame:frame];
    if (self != nil) {
        view_ = view;
    }
    return self;
}

- (void)forgetView {
    view_ = nullptr;
}

- (BOOL)acceptsFirstResponder {
    const auto view = hold(view_);
    if (!view) {
        return [super acceptsFirstResponder];
    }
    return callOut([&] { return view->acceptsFirstResponder(); }) ? YES : NO;
}

- (void)viewDidMoveToWindow {
    const auto view = hold(view_);
    if (!view) {
        [super viewDidMoveToWindow];
        return;
    }
    callOut([&] { view->viewDidMoveToWindow(); });
}

- (void)updateTrackingAreas {
    const auto view = hold(view_);
    if (!view) {
        [super updateTrackingAreas];
        return;
    }
    callOut([&] { view->updateTrackingAreas(); });
}

- (void)drawRect:(NSRect)dirtyRect {
    const auto view = hold(view_);
    if (!view) {
        [super drawRect:dirtyRect];
        return;
    }
    callOut([&] { view->draw(nsRectToRect(dirtyRect)); });
}

- (void)mouseEntered:(NSEvent*)event {
    if (![self handOn:event as:nsMouseEventToEvent(event) to:&View::mouseEntered]) {
        [super mouseEntered:event];
    }
}

- (void)mouseExited:(NSEvent*)event {
    if (![self handOn:event as:nsMouseEventToEvent(event) to:&View::mouseExited]) {
        [super mouseExited:event];
    }
}

- (void)mouseUp:(NSEvent*)event {
    if (![self handOn:event as:nsMouseEventToEvent(event) to:&View::mouseUp]) {
        [super mouseUp:event];
    }
}

- (void)keyDown:(NSEvent*)event {
    if (![self handOn:event as:nsKeyEventToEvent(event) to:&View::keyDown]) {
        [super keyDown:event];
    }
}

// Answers whether there was a view to hand it to.
- (BOOL)handOn:(NSEvent*)event as:(const Event&)converted to:(EventHandler)handler {
    const auto view = hold(view_);
    if (!view) {
        return NO;
    }
    NSEvent* const outer = event_; // a handler may run an event loop of its own
    event_ = event;
    callOut([&] { ((*view).*handler)(converted); });
    event_ = outer;
    return YES;
}

- (BOOL)superAcceptsFirstResponder {
    return [super acceptsFirstResponder];
}

- (void)superViewDidMoveToWindow {
    [super viewDidMoveToWindow];
}

- (void)superUpdateTrackingAreas {
    [super updateTrackingAreas];
}

- (void)superDrawRect:(NSRect)dirtyRect {
    [super drawRect:dirtyRect];
}

- (void)superMouseEntered {
    if (event_ != nil) {
        [super mouseEntered:event_];
    }
}

- (void)superMouseExited {
    if (event_ != nil) {
        [super mouseExited:event_];
    }
}

- (void)superMouseUp {
    if (event_ != nil) {
        [super mouseUp:event_];
    }
}

- (void)superKeyDown {
    if (event_ != nil) {
        [super keyDown:event_];
    }
}

@end
