#pragma once

// The Core Animation calls that the host makes. The class comes with AppKit, and its name is never
// spoken: there is nothing to link.

#include <CoreGraphics/CoreGraphics.h>
#include <objc/NSObject.h>

@interface CALayer : NSObject
@property CGFloat cornerRadius;
@property CGFloat borderWidth;
@property CGColorRef backgroundColor;
@property CGColorRef borderColor;
@end
