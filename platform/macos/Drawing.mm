#include "platform/Drawing.h"

#include "platform/macos/AppearanceConversions.h"
#include "platform/macos/Conversions.h"

namespace platform {

void fillRoundedRect(Rect rect, double xRadius, double yRadius, Color fillColor) {
    [macos::colorToNSColor(fillColor) setFill];
    [[NSBezierPath bezierPathWithRoundedRect:macos::rectToNSRect(rect)
                                     xRadius:xRadius
                                     yRadius:yRadius] fill];
}

} // namespace platform
