#pragma once

// The Core Foundation calls that the host makes.

#include <objc/NSObjCRuntime.h>

typedef unsigned char Boolean;
typedef unsigned int UInt32;
typedef int SInt32;
typedef SInt32 OSStatus;
typedef UInt32 OSType;
typedef UInt32 OptionBits;
typedef unsigned long ByteCount;
typedef unsigned long ItemCount;

typedef double CFAbsoluteTime;
typedef long CFIndex;
typedef unsigned long CFTypeID;
typedef const void* CFTypeRef;
typedef const struct OpaqueCFArray* CFArrayRef;
typedef const struct OpaqueCFBoolean* CFBooleanRef;
typedef const struct OpaqueCFDictionary* CFDictionaryRef;
typedef const struct OpaqueCFString* CFStringRef;

typedef double CGFloat;

struct CGPoint {
    CGFloat x;
    CGFloat y;
};

struct CGSize {
    CGFloat width;
    CGFloat height;
};

struct CGRect {
    CGPoint origin;
    CGSize size;
};

extern "C" {

extern const CFBooleanRef kCFBooleanTrue;
extern const CFBooleanRef kCFBooleanFalse;

// Neither takes NULL.
CFTypeRef CFRetain(CFTypeRef object);
void CFRelease(CFTypeRef object);
CFTypeID CFGetTypeID(CFTypeRef object);

CFTypeID CFArrayGetTypeID(void);
CFIndex CFArrayGetCount(CFArrayRef array);
const void* CFArrayGetValueAtIndex(CFArrayRef array, CFIndex index);

CFAbsoluteTime CFAbsoluteTimeGetCurrent(void);

} // extern "C"
