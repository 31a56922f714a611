#pragma once

#include "platform/PowerAssertions.h"

#include <map>
#include <string>

namespace simulated {

/// The holds on the display's sleep.
class PowerAssertions {
  public:
    struct Assertion {
        std::string type;
        std::uint32_t level = 0;
        std::string name;

        bool operator==(const Assertion&) const = default;
    };

    // Faults: what a call is answered with, in place of doing anything.
    platform::IOReturn createStatus = platform::kIOReturnSuccess;
    platform::IOReturn releaseStatus = platform::kIOReturnSuccess;

    /// What is held now, by its id.
    [[nodiscard]] const std::map<platform::PowerAssertionID, Assertion>& held() const {
        return held_;
    }
    /// Whether anything keeps the display from sleeping.
    [[nodiscard]] bool displayStaysAwake() const { return !held_.empty(); }

    // For the seam.
    platform::CreatedPowerAssertion create(Assertion assertion);
    /// Misuse when `id` names none that is held.
    platform::IOReturn release(platform::PowerAssertionID id);

  private:
    std::map<platform::PowerAssertionID, Assertion> held_;
    platform::PowerAssertionID lastID_ = 0;
};

} // namespace simulated
