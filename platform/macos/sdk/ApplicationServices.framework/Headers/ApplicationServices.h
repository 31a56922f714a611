#pragma once

// The Accessibility calls that the host makes.

#include <CoreFoundation/CoreFoundation.h>
#include <sys/types.h>

typedef enum AXError : SInt32 AXError;
enum AXError : SInt32 {
    kAXErrorSuccess = 0,
    kAXErrorFailure = -25200,
    kAXErrorInvalidUIElement = -25202,
    kAXErrorCannotComplete = -25204,
    kAXErrorAttributeUnsupported = -25205,
    kAXErrorAPIDisabled = -25211,
    kAXErrorNoValue = -25212,
};

typedef const struct OpaqueAXUIElement* AXUIElementRef;

extern "C" {

extern const CFStringRef kAXTrustedCheckOptionPrompt;

Boolean AXIsProcessTrusted(void);
Boolean AXIsProcessTrustedWithOptions(CFDictionaryRef options);

CFTypeID AXUIElementGetTypeID(void);
AXUIElementRef AXUIElementCreateApplication(pid_t processIdentifier);
AXError AXUIElementCopyAttributeValue(AXUIElementRef element, CFStringRef attribute,
                                      CFTypeRef* value);
AXError AXUIElementSetAttributeValue(AXUIElementRef element, CFStringRef attribute,
                                     CFTypeRef value);

} // extern "C"
