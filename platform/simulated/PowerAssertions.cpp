#include "platform/simulated/PowerAssertions.h"

#include "platform/simulated/Desktop.h"
#include "platform/simulated/Misuse.h"

#include <algorithm>
#include <utility>

namespace simulated {

bool PowerAssertions::displayStaysAwake() const {
    return std::ranges::any_of(held_, [](const auto& entry) {
        const Assertion& assertion = entry.second;
        return assertion.type == "NoDisplaySleepAssertion" &&
               assertion.level == platform::kIOPMAssertionLevelOn;
    });
}

platform::CreatedPowerAssertion PowerAssertions::create(Assertion assertion) {
    if (createStatus != platform::kIOReturnSuccess) {
        return {createStatus, 0};
    }
    held_.emplace(++lastID_, std::move(assertion));
    return {platform::kIOReturnSuccess, lastID_};
}

platform::IOReturn PowerAssertions::release(platform::PowerAssertionID id) {
    if (!held_.contains(id)) {
        if (staleID == StaleID::isMisuse) {
            misuse("power assertion " + std::to_string(id) + " is released, but is not held");
        }
        return platform::kIOReturnNotFound;
    }
    if (releaseStatus == platform::kIOReturnSuccess) {
        held_.erase(id);
    }
    return releaseStatus;
}

} // namespace simulated

namespace platform {

using simulated::desktop;

CreatedPowerAssertion createPowerAssertion(std::string_view type, std::uint32_t level,
                                           std::string_view name) {
    desktop().calls.record("createPowerAssertion", {type, std::to_string(level), name});
    return desktop().powerAssertions.create({std::string(type), level, std::string(name)});
}

IOReturn releasePowerAssertion(PowerAssertionID id) {
    desktop().calls.record("releasePowerAssertion", {std::to_string(id)});
    return desktop().powerAssertions.release(id);
}

} // namespace platform
