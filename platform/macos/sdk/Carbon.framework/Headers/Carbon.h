#pragma once

// The Carbon Event Manager calls that the host makes.

#include <CoreFoundation/CoreFoundation.h>

typedef struct OpaqueEventRef* EventRef;
typedef struct OpaqueEventTargetRef* EventTargetRef;
typedef struct OpaqueEventHandlerRef* EventHandlerRef;
typedef struct OpaqueEventHandlerCallRef* EventHandlerCallRef;
typedef struct OpaqueEventHotKeyRef* EventHotKeyRef;
typedef OSType EventParamName;
typedef OSType EventParamType;
typedef OSStatus (*EventHandlerUPP)(EventHandlerCallRef nextHandler, EventRef event,
                                    void* userData);

enum : OSStatus {
    noErr = 0,
    eventParameterNotFoundErr = -9870,
    eventHotKeyExistsErr = -9878,
    eventHotKeyInvalidErr = -9879,
};

enum : OSType {
    kEventClassKeyboard = 0x6B657962,     // 'keyb'
    kEventParamDirectObject = 0x2D2D2D2D, // '----'
    typeEventHotKeyID = 0x686B6964,       // 'hkid'
};

enum : UInt32 { kEventHotKeyPressed = 5 };

#pragma pack(push, 2)
struct EventTypeSpec {
    OSType eventClass;
    UInt32 eventKind;
};

struct EventHotKeyID {
    OSType signature;
    UInt32 id;
};
#pragma pack(pop)

extern "C" {

EventTargetRef GetApplicationEventTarget(void);
OSStatus InstallEventHandler(EventTargetRef target, EventHandlerUPP handler, ItemCount typeCount,
                             const EventTypeSpec* types, void* userData,
                             EventHandlerRef* handlerRef);
OSStatus GetEventParameter(EventRef event, EventParamName name, EventParamType desiredType,
                           EventParamType* actualType, ByteCount bufferSize, ByteCount* actualSize,
                           void* data);
OSStatus RegisterEventHotKey(UInt32 keyCode, UInt32 modifiers, EventHotKeyID identity,
                             EventTargetRef target, OptionBits options, EventHotKeyRef* hotKey);
OSStatus UnregisterEventHotKey(EventHotKeyRef hotKey);

} // extern "C"
