#include "platform/macos/Conversions.h"

namespace platform::macos {

namespace {

// What each alternative of a DefaultsValue is as a property-list object.
struct PropertyList {
    Object<id> operator()(bool value) const { return share([NSNumber numberWithBool:value]); }
    Object<id> operator()(std::int64_t value) const {
        return share([NSNumber numberWithInteger:static_cast<NSInteger>(value)]);
    }
    Object<id> operator()(double value) const { return share([NSNumber numberWithDouble:value]); }
    Object<id> operator()(const std::string& value) const {
        return share(stringToNSString(value).get());
    }
    Object<id> operator()(const Data& value) const { return share(dataToNSData(value).get()); }
    Object<id> operator()(const StringArray& value) const {
        return share(stringArrayToNSArray(value).get());
    }

  private:
    static Object<id> share(id object) { return Object<id>::share(object); }
};

template <typename Name>
std::optional<Name> referenceToName(const void* reference) {
    if (reference == nullptr) {
        return std::nullopt;
    }
    return Name{reinterpret_cast<std::uintptr_t>(reference)};
}

} // namespace

Object<NSString*> stringToNSString(std::string_view text) {
    NSString* const string = [[NSString alloc] initWithBytes:text.data()
                                                      length:text.size()
                                                    encoding:NSUTF8StringEncoding];
    if (string == nil) {
        return Object<NSString*>::share(@"");
    }
    return Object<NSString*>::adopt(string);
}

std::string nsStringToString(NSString* text) {
    const char* const bytes = text.UTF8String;
    if (bytes == nullptr) {
        return {};
    }
    return {bytes, [text lengthOfBytesUsingEncoding:NSUTF8StringEncoding]};
}

Object<NSString*> pathToNSString(const std::filesystem::path& path) {
    return stringToNSString(path.native());
}

std::filesystem::path nsStringToPath(NSString* path) {
    return nsStringToString(path);
}

Object<NSData*> dataToNSData(const Data& data) {
    return Object<NSData*>::share([NSData dataWithBytes:data.data() length:data.size()]);
}

Data nsDataToData(NSData* data) {
    const auto* const bytes = static_cast<const std::uint8_t*>(data.bytes);
    return {bytes, bytes + data.length};
}

Object<NSArray*> stringArrayToNSArray(const StringArray& strings) {
    const auto array = Object<NSMutableArray*>::adopt([[NSMutableArray alloc] init]);
    for (const std::string& string : strings) {
        [array.get() addObject:stringToNSString(string).get()];
    }
    return Object<NSArray*>::share(array.get());
}

StringArray nsArrayToStringArray(NSArray* strings) {
    StringArray array;
    for (NSString* string in strings) {
        array.push_back(nsStringToString(string));
    }
    return array;
}

Object<id> defaultsValueToObject(const DefaultsValue& value) {
    return std::visit(PropertyList(), value);
}

Object<NSDictionary*>
defaultsValuesToNSDictionary(const std::map<std::string, DefaultsValue, std::less<>>& values) {
    const auto dictionary = Object<NSMutableDictionary*>::adopt([[NSMutableDictionary alloc] init]);
    for (const auto& [key, value] : values) {
        [dictionary.get() setObject:defaultsValueToObject(value).get()
                             forKey:stringToNSString(key).get()];
    }
    return Object<NSDictionary*>::share(dictionary.get());
}

NSApplicationActivationPolicy activationPolicyToNS(ActivationPolicy policy) {
    return static_cast<NSApplicationActivationPolicy>(policy);
}

ActivationPolicy nsToActivationPolicy(NSApplicationActivationPolicy policy) {
    return static_cast<ActivationPolicy>(policy);
}

static_assert(static_cast<NSInteger>(ActivationPolicy::regular) ==
              NSApplicationActivationPolicyRegular);
static_assert(static_cast<NSInteger>(ActivationPolicy::accessory) ==
              NSApplicationActivationPolicyAccessory);
static_assert(static_cast<NSInteger>(ActivationPolicy::prohibited) ==
              NSApplicationActivationPolicyProhibited);

Point nsPointToPoint(NSPoint point) {
    return {point.x, point.y};
}

NSPoint pointToNSPoint(Point point) {
    return {point.x, point.y};
}

Size nsSizeToSize(NSSize size) {
    return {size.width, size.height};
}

NSSize sizeToNSSize(Size size) {
    return {size.width, size.height};
}

Rect nsRectToRect(NSRect rect) {
    return {nsPointToPoint(rect.origin), nsSizeToSize(rect.size)};
}

NSRect rectToNSRect(Rect rect) {
    return {pointToNSPoint(rect.origin), sizeToNSSize(rect.size)};
}

Event nsMouseEventToEvent(NSEvent* event) {
    return {.locationInWindow = nsPointToPoint(event.locationInWindow),
            .modifierFlags = static_cast<std::uint32_t>(event.modifierFlags)};
}

Event nsKeyEventToEvent(NSEvent* event) {
    Event converted = nsMouseEventToEvent(event);
    converted.keyCode = event.keyCode;
    return converted;
}

static_assert(modifierFlagShift == NSEventModifierFlagShift);
static_assert(modifierFlagControl == NSEventModifierFlagControl);
static_assert(modifierFlagOption == NSEventModifierFlagOption);
static_assert(modifierFlagCommand == NSEventModifierFlagCommand);

LoginItemStatus smToLoginItemStatus(SMAppServiceStatus status) {
    return static_cast<LoginItemStatus>(status);
}

static_assert(static_cast<NSInteger>(LoginItemStatus::notRegistered) ==
              SMAppServiceStatusNotRegistered);
static_assert(static_cast<NSInteger>(LoginItemStatus::enabled) == SMAppServiceStatusEnabled);
static_assert(static_cast<NSInteger>(LoginItemStatus::requiresApproval) ==
              SMAppServiceStatusRequiresApproval);
static_assert(static_cast<NSInteger>(LoginItemStatus::notFound) == SMAppServiceStatusNotFound);

LoginItemError nsErrorToLoginItemError(NSError* error) {
    return {nsStringToString(error.description)};
}

AXError axToAXError(::AXError error) {
    return static_cast<AXError>(error);
}

static_assert(static_cast<int>(AXError::success) == kAXErrorSuccess);
static_assert(static_cast<int>(AXError::failure) == kAXErrorFailure);
static_assert(static_cast<int>(AXError::invalidUIElement) == kAXErrorInvalidUIElement);
static_assert(static_cast<int>(AXError::cannotComplete) == kAXErrorCannotComplete);
static_assert(static_cast<int>(AXError::attributeUnsupported) == kAXErrorAttributeUnsupported);
static_assert(static_cast<int>(AXError::apiDisabled) == kAXErrorAPIDisabled);
static_assert(static_cast<int>(AXError::noValue) == kAXErrorNoValue);

::EventHotKeyID eventHotKeyIDToCarbon(EventHotKeyID identity) {
    return {identity.signature, identity.id};
}

EventHotKeyID carbonToEventHotKeyID(::EventHotKeyID identity) {
    return {identity.signature, identity.id};
}

::EventHotKeyRef eventHotKeyRefToCarbon(EventHotKeyRef hotKey) {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): a name was a reference once
    return reinterpret_cast<::EventHotKeyRef>(hotKey);
}

std::optional<EventHotKeyRef> carbonToEventHotKeyRef(::EventHotKeyRef hotKey) {
    return referenceToName<EventHotKeyRef>(hotKey);
}

std::optional<EventHandlerRef> carbonToEventHandlerRef(::EventHandlerRef handler) {
    return referenceToName<EventHandlerRef>(handler);
}

static_assert(noErr == ::noErr);
static_assert(eventParameterNotFoundErr == ::eventParameterNotFoundErr);
static_assert(eventHotKeyExistsErr == ::eventHotKeyExistsErr);
static_assert(eventHotKeyInvalidErr == ::eventHotKeyInvalidErr);

} // namespace platform::macos
