#include "platform/simulated/PowerAssertions.h"

#include "platform/simulated/Desktop.h"
#include "platform/simulated/Misuse.h"

#include <utility>

namespace simulated {

platform::CreatedPowerAssertion PowerAssertions::create(Assertion assertion) {
    if (createStatus != platform::kIOReturnSuccess) {
        return {createStatus, 0};
    }
    held_.emplace(++lastID_, std::move(assertion));
    return {platform::kIOReturnSuccess, lastID_};
}

platform::IOReturn PowerAssertions::release(platform::PowerAssertionID id) {
    if (!held_.contains(id)) {
        misuse("power assertion " + std::to_string(id) + " is released, but is not held");
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
