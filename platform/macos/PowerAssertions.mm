#include "platform/PowerAssertions.h"

#include "platform/macos/Conversions.h"

#import <IOKit/pwr_mgt/IOPMLib.h>

namespace platform {

static_assert(kIOPMAssertionLevelOn == ::kIOPMAssertionLevelOn);

CreatedPowerAssertion createPowerAssertion(std::string_view type, std::uint32_t level,
                                           std::string_view name) {
    const auto typeString = macos::stringToNSString(type);
    const auto nameString = macos::stringToNSString(name);
    IOPMAssertionID id = 0;
    const IOReturn status =
        IOPMAssertionCreateWithName(macos::tollFreeBridge<CFStringRef>(typeString.get()), level,
                                    macos::tollFreeBridge<CFStringRef>(nameString.get()), &id);
    return {status, id};
}

IOReturn releasePowerAssertion(PowerAssertionID id) {
    return IOPMAssertionRelease(id);
}

} // namespace platform
