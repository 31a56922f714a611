#include "platform/PowerAssertions.h"

#include "platform/linux/log/Log.h"
#include "platform/linux/power/DisplaySleepHold.h"

#include <map>
#include <memory>

namespace platform {

using linux_host::DisplaySleepHold;

namespace {

struct Assertions {
    std::map<PowerAssertionID, std::unique_ptr<DisplaySleepHold>> held;
    PowerAssertionID lastID = 0;
};

// Never destroyed: what is held then, the process gives back by ending.
Assertions& assertions() {
    static auto* const instance = new Assertions;
    return *instance;
}

} // namespace

CreatedPowerAssertion createPowerAssertion(std::string_view type, std::uint32_t level,
                                           std::string_view name) {
    if (type != "NoDisplaySleepAssertion" || level != kIOPMAssertionLevelOn) {
        return {.status = kIOReturnError};
    }
    auto hold = std::make_unique<DisplaySleepHold>(std::string(name));
    if (!hold->isHeld()) {
        linux_host::logOnce("keep awake",
                            "Quellbar: the display cannot be kept awake: no service offers it");
        return {.status = kIOReturnError};
    }
    const PowerAssertionID id = ++assertions().lastID;
    assertions().held.emplace(id, std::move(hold));
    return {.id = id};
}

IOReturn releasePowerAssertion(PowerAssertionID id) {
    return assertions().held.erase(id) == 1 ? kIOReturnSuccess : kIOReturnNotFound;
}

} // namespace platform
