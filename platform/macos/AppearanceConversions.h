#pragma once

#include "platform/AttributedString.h"
#include "platform/Menu.h"
#include "platform/StatusItem.h"
#include "platform/TextField.h"
#include "platform/macos/Holder.h"

#import <AppKit/AppKit.h>

/// The conversions of what text, images and controls look like. Objects are lent to a conversion;
/// those that AppKit makes afresh come from it in a holder.
namespace platform::macos {

/// AppKit's own object, which follows the appearance.
[[nodiscard]] NSColor* colorToNSColor(Color color);

/// Components count in the sRGB space.
[[nodiscard]] CFObject<CGColorRef> cgColorToCGColorRef(CGColor color);
[[nodiscard]] CGColor cgColorRefToCGColor(CGColorRef color);

[[nodiscard]] NSFont* fontToNSFont(Font font);

/// With the attributes that are present, and no others.
[[nodiscard]] Object<NSAttributedString*>
attributedStringToNSAttributedString(const AttributedString& text);

[[nodiscard]] NSTextAlignment textAlignmentToNS(TextAlignment alignment);
[[nodiscard]] NSCellImagePosition imagePositionToNS(ImagePosition position);

[[nodiscard]] NSControlStateValue controlStateToNS(ControlState state);
[[nodiscard]] ControlState nsToControlState(NSControlStateValue state);

} // namespace platform::macos
