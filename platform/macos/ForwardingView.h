#pragma once

#include "platform/View.h"

#import <AppKit/AppKit.h>

/// The NSView behind every view that is not a control: what AppKit tells it, it tells the seam's
/// view through that one's virtuals. Their base implementations come back to the methods that begin
/// with "super", so a room that calls its base gets what a subclass of NSView gets from super.
/// Before its view is shared by anyone, and after that view is gone, this is a plain NSView.
@interface QuellbarView : NSView

/// `view` is not kept, and has to say when it goes.
- (instancetype)initWithFrame:(NSRect)frame view:(platform::View*)view;
- (void)forgetView;

- (BOOL)superAcceptsFirstResponder;
- (void)superViewDidMoveToWindow;
- (void)superUpdateTrackingAreas;
- (void)superDrawRect:(NSRect)dirtyRect;
// With the event that is being handed on. There is none while the program calls a virtual by
// itself: then these do nothing.
- (void)superMouseEntered;
- (void)superMouseExited;
- (void)superMouseUp;
- (void)superKeyDown;

@end
