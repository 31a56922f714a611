#include "platform/macos/AppearanceConversions.h"

#include "platform/macos/Conversions.h"

namespace platform::macos {

namespace {

Object<NSDictionary*> attributesOf(const AttributedString& text) {
    const auto attributes = Object<NSMutableDictionary*>::adopt([[NSMutableDictionary alloc] init]);
    if (text.foregroundColor) {
        [attributes.get() setObject:colorToNSColor(*text.foregroundColor)
                             forKey:NSForegroundColorAttributeName];
    }
    if (text.font) {
        [attributes.get() setObject:fontToNSFont(*text.font) forKey:NSFontAttributeName];
    }
    if (text.baselineOffset) {
        [attributes.get() setObject:[NSNumber numberWithInteger:*text.baselineOffset]
                             forKey:NSBaselineOffsetAttributeName];
    }
    return Object<NSDictionary*>::share(attributes.get());
}

} // namespace

NSColor* colorToNSColor(Color color) {
    switch (color) {
    case Color::label:
        return NSColor.labelColor;
    case Color::secondaryLabel:
        return NSColor.secondaryLabelColor;
    case Color::white:
        return NSColor.whiteColor;
    case Color::systemRed:
        return NSColor.systemRedColor;
    case Color::selectedContentBackground:
        return NSColor.selectedContentBackgroundColor;
    case Color::controlBackground:
        return NSColor.controlBackgroundColor;
    case Color::controlAccent:
        return NSColor.controlAccentColor;
    }
    return nil;
}

CFObject<CGColorRef> cgColorToCGColorRef(CGColor color) {
    return CFObject<CGColorRef>::adopt(
        CGColorCreateSRGB(color.red, color.green, color.blue, color.alpha));
}

CGColor cgColorRefToCGColor(CGColorRef color) {
    constexpr CGColorRenderingIntent defaultIntent{};
    const auto space =
        CFObject<CGColorSpaceRef>::adopt(CGColorSpaceCreateWithName(kCGColorSpaceSRGB));
    const auto converted = CFObject<CGColorRef>::adopt(
        CGColorCreateCopyByMatchingToColorSpace(space.get(), defaultIntent, color, nullptr));
    if (converted.get() == nullptr) { // a pattern: nothing to count in components
        return {};
    }
    const CGFloat* const components = CGColorGetComponents(converted.get());
    return {components[0], components[1], components[2], components[3]};
}

NSFont* fontToNSFont(Font font) {
    switch (font.purpose) {
    case Font::Purpose::system:
        return [NSFont systemFontOfSize:font.size];
    case Font::Purpose::boldSystem:
        return [NSFont boldSystemFontOfSize:font.size];
    case Font::Purpose::menu:
        return [NSFont menuFontOfSize:font.size];
    case Font::Purpose::menuBar:
        return [NSFont menuBarFontOfSize:font.size];
    }
    return nil;
}

Object<NSAttributedString*> attributedStringToNSAttributedString(const AttributedString& text) {
    return Object<NSAttributedString*>::adopt([[NSAttributedString alloc]
        initWithString:stringToNSString(text.string).get()
            attributes:attributesOf(text).get()]);
}

NSTextAlignment textAlignmentToNS(TextAlignment alignment) {
    switch (alignment) {
    case TextAlignment::natural:
        return NSTextAlignmentNatural;
    case TextAlignment::center:
        return NSTextAlignmentCenter;
    }
    return NSTextAlignmentNatural;
}

NSCellImagePosition imagePositionToNS(ImagePosition position) {
    return static_cast<NSCellImagePosition>(position);
}

static_assert(static_cast<NSUInteger>(ImagePosition::noImage) == NSNoImage);
static_assert(static_cast<NSUInteger>(ImagePosition::imageOnly) == NSImageOnly);
static_assert(static_cast<NSUInteger>(ImagePosition::imageLeading) == NSImageLeading);

NSControlStateValue controlStateToNS(ControlState state) {
    return static_cast<NSControlStateValue>(state);
}

ControlState nsToControlState(NSControlStateValue state) {
    return static_cast<ControlState>(state);
}

static_assert(static_cast<NSControlStateValue>(ControlState::mixed) == NSControlStateValueMixed);
static_assert(static_cast<NSControlStateValue>(ControlState::off) == NSControlStateValueOff);
static_assert(static_cast<NSControlStateValue>(ControlState::on) == NSControlStateValueOn);

} // namespace platform::macos
