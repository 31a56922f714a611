#pragma once

// The power-management calls that the host makes.

#include <CoreFoundation/CoreFoundation.h>

typedef int IOReturn;
typedef UInt32 IOPMAssertionID;
typedef UInt32 IOPMAssertionLevel;

enum : IOPMAssertionLevel { kIOPMAssertionLevelOn = 255 };

extern "C" {

IOReturn IOPMAssertionCreateWithName(CFStringRef type, IOPMAssertionLevel level, CFStringRef name,
                                     IOPMAssertionID* assertion);
IOReturn IOPMAssertionRelease(IOPMAssertionID assertion);

} // extern "C"
