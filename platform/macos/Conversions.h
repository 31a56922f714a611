#pragma once

#include "platform/Accessibility.h"
#include "platform/ActivationPolicy.h"
#include "platform/Event.h"
#include "platform/Geometry.h"
#include "platform/HotKeys.h"
#include "platform/LoginItem.h"
#include "platform/UserDefaults.h"
#include "platform/macos/Holder.h"

#import <AppKit/AppKit.h>
#import <ApplicationServices/ApplicationServices.h>
#import <Carbon/Carbon.h>
#import <ServiceManagement/ServiceManagement.h>

#include <filesystem>

/// The conversions between the seam's types and the system's, named after what they turn into what.
/// Objects are lent to a conversion, and come from it in a holder. What things look like is
/// converted in AppearanceConversions.h.
namespace platform::macos {

/// The same object under its other type: strings, arrays, dictionaries, numbers and booleans of
/// Foundation and of Core Foundation are interchangeable.
template <typename To, typename From>
[[nodiscard]] To tollFreeBridge(From object) {
    return reinterpret_cast<To>(object);
}

/// Text that is not UTF-8 becomes the empty string: a nil would raise an exception, or mean
/// something else, nearly everywhere a string is asked for.
[[nodiscard]] Object<NSString*> stringToNSString(std::string_view text);
[[nodiscard]] std::string nsStringToString(NSString* text);

[[nodiscard]] Object<NSString*> pathToNSString(const std::filesystem::path& path);
[[nodiscard]] std::filesystem::path nsStringToPath(NSString* path);

[[nodiscard]] Object<NSData*> dataToNSData(const Data& data);
[[nodiscard]] Data nsDataToData(NSData* data);

[[nodiscard]] Object<NSArray*> stringArrayToNSArray(const StringArray& strings);
/// `strings` holds nothing but strings.
[[nodiscard]] StringArray nsArrayToStringArray(NSArray* strings);

/// The property-list object of a value.
[[nodiscard]] Object<id> defaultsValueToObject(const DefaultsValue& value);
[[nodiscard]] Object<NSDictionary*>
defaultsValuesToNSDictionary(const std::map<std::string, DefaultsValue, std::less<>>& values);

[[nodiscard]] NSApplicationActivationPolicy activationPolicyToNS(ActivationPolicy policy);
[[nodiscard]] ActivationPolicy nsToActivationPolicy(NSApplicationActivationPolicy policy);

/// Both sides count in points, from the same origin.
[[nodiscard]] Point nsPointToPoint(NSPoint point);
[[nodiscard]] NSPoint pointToNSPoint(Point point);
[[nodiscard]] Size nsSizeToSize(NSSize size);
[[nodiscard]] NSSize sizeToNSSize(Size size);
[[nodiscard]] Rect nsRectToRect(NSRect rect);
[[nodiscard]] NSRect rectToNSRect(Rect rect);

/// A mouse event, which has no key code: asking it for one raises an exception.
[[nodiscard]] Event nsMouseEventToEvent(NSEvent* event);
[[nodiscard]] Event nsKeyEventToEvent(NSEvent* event);

[[nodiscard]] LoginItemStatus smToLoginItemStatus(SMAppServiceStatus status);
/// Described as the system prints an error, with its domain and code.
[[nodiscard]] LoginItemError nsErrorToLoginItemError(NSError* error);

[[nodiscard]] AXError axToAXError(::AXError error);

[[nodiscard]] ::EventHotKeyID eventHotKeyIDToCarbon(EventHotKeyID identity);
[[nodiscard]] EventHotKeyID carbonToEventHotKeyID(::EventHotKeyID identity);

/// The seam's names are the Event Manager's references; null is no name.
[[nodiscard]] ::EventHotKeyRef eventHotKeyRefToCarbon(EventHotKeyRef hotKey);
[[nodiscard]] std::optional<EventHotKeyRef> carbonToEventHotKeyRef(::EventHotKeyRef hotKey);
[[nodiscard]] std::optional<EventHandlerRef> carbonToEventHandlerRef(::EventHandlerRef handler);

} // namespace platform::macos
