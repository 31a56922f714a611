#pragma once

#include <cstdint>
#include <string_view>

/// Holds on the machine's power state. Stands for the IOKit power-management assertions on macOS;
/// on Linux one assertion is every hold that can be had: the X server's saver, the session's
/// inhibitors and logind, taken again when one of them returns. No call waits longer than a second
/// for any of them. Whatever is held ends with the process, however it ends. Main thread only.
namespace platform {

/// `kIOReturnSuccess`, or the system's own error number.
using IOReturn = std::int32_t;
inline constexpr IOReturn kIOReturnSuccess = 0;
inline constexpr IOReturn kIOReturnError = -536870212;
inline constexpr IOReturn kIOReturnNotFound = -536870160;

/// Names a held assertion until it is released.
using PowerAssertionID = std::uint32_t;

/// The level at which an assertion is on.
inline constexpr std::uint32_t kIOPMAssertionLevelOn = 255;

struct CreatedPowerAssertion {
    IOReturn status = kIOReturnSuccess;
    PowerAssertionID id = 0; ///< meaningless unless the status is success
};

/// Takes an assertion. `name` is what the system's power tools show. The only type that every host
/// knows is "NoDisplaySleepAssertion": the display does not sleep and is not locked for idleness.
/// Fails where nothing can be held.
[[nodiscard]] CreatedPowerAssertion createPowerAssertion(std::string_view type, std::uint32_t level,
                                                         std::string_view name);

/// Lets go of an assertion. An error when `id` names none that is held.
IOReturn releasePowerAssertion(PowerAssertionID id);

} // namespace platform
