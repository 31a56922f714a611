#include "platform/Accessibility.h"

#include "platform/macos/Conversions.h"

namespace platform {

using macos::CFObject;

struct UIElement::Peer {
    CFObject<AXUIElementRef> element;
};

namespace {

UIElement elementOf(CFObject<AXUIElementRef> element) {
    return UIElement(std::make_shared<const UIElement::Peer>(UIElement::Peer{std::move(element)}));
}

// A list that holds anything but elements is some other value.
AttributeValue attributeValueOf(CFArrayRef array) {
    std::vector<UIElement> elements;
    for (CFIndex index = 0; index < CFArrayGetCount(array); ++index) {
        const CFTypeRef item = CFArrayGetValueAtIndex(array, index);
        if (CFGetTypeID(item) != AXUIElementGetTypeID()) {
            return OtherValue();
        }
        elements.push_back(
            elementOf(CFObject<AXUIElementRef>::share(static_cast<AXUIElementRef>(item))));
    }
    return elements;
}

AttributeValue attributeValueOf(CFTypeRef value) {
    if (value == nullptr) {
        return {};
    }
    if (CFGetTypeID(value) != CFArrayGetTypeID()) {
        return OtherValue();
    }
    return attributeValueOf(static_cast<CFArrayRef>(value));
}

} // namespace

bool isProcessTrusted() {
    return AXIsProcessTrusted() != 0;
}

bool isProcessTrustedWithOptions(TrustedCheckOptions options) {
    auto* const prompt = macos::tollFreeBridge<NSString*>(kAXTrustedCheckOptionPrompt);
    NSDictionary* const dictionary = @{prompt : @(options.prompt)};
    return AXIsProcessTrustedWithOptions(macos::tollFreeBridge<CFDictionaryRef>(dictionary)) != 0;
}

UIElement UIElement::createApplication(ProcessIdentifier processIdentifier) {
    return elementOf(
        CFObject<AXUIElementRef>::adopt(AXUIElementCreateApplication(processIdentifier)));
}

AXError UIElement::copyAttributeValue(std::string_view attribute, AttributeValue& value) const {
    const auto name = macos::stringToNSString(attribute);
    CFTypeRef copied = nullptr;
    const AXError error = macos::axToAXError(AXUIElementCopyAttributeValue(
        peer_->element.get(), macos::tollFreeBridge<CFStringRef>(name.get()), &copied));
    const auto owned = CFObject<CFTypeRef>::adopt(copied);
    if (error == AXError::success) {
        value = attributeValueOf(owned.get());
    }
    return error;
}

AXError UIElement::setAttributeValue(std::string_view attribute, bool value) const {
    const auto name = macos::stringToNSString(attribute);
    return macos::axToAXError(AXUIElementSetAttributeValue(
        peer_->element.get(), macos::tollFreeBridge<CFStringRef>(name.get()),
        value ? kCFBooleanTrue : kCFBooleanFalse));
}

} // namespace platform
