#pragma once

// The Core Graphics calls that the host makes.

#include <CoreFoundation/CoreFoundation.h>

typedef struct CGColor* CGColorRef;
typedef struct CGColorSpace* CGColorSpaceRef;

// Zero is the default intent.
typedef enum CGColorRenderingIntent : SInt32 CGColorRenderingIntent;
enum CGColorRenderingIntent : SInt32 {};

extern "C" {

extern const CFStringRef kCGColorSpaceSRGB;

CGColorSpaceRef CGColorSpaceCreateWithName(CFStringRef name);

CGColorRef CGColorCreateSRGB(CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha);
CGColorRef CGColorCreateCopyByMatchingToColorSpace(CGColorSpaceRef space,
                                                   CGColorRenderingIntent intent, CGColorRef color,
                                                   CFDictionaryRef options);
// As many as the colour's space has, and the opacity last. The colour keeps them.
const CGFloat* CGColorGetComponents(CGColorRef color);

} // extern "C"
