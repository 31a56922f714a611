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

    enum class StaleID { isMisuse, isAnError };

    // Faults: what a call is answered with, in place of doing anything.
    platform::IOReturn createStatus = platform::kIOReturnSuccess;
    platform::IOReturn releaseStatus = platform::kIOReturnSuccess;
    /// Releasing what is not held is answered with an error by a real desktop, but no program of
    /// ours has reason to do it.
    StaleID staleID = StaleID::isMisuse;

    /// What is held now, by its id.
    [[nodiscard]] const std::map<platform::PowerAssertionID, Assertion>& held() const {
        return held_;
    }
    /// Whether anything keeps the display from sleeping: an assertion of that type that is on.
    [[nodiscard]] bool displayStaysAwake() const;

    // For the seam.
    platform::CreatedPowerAssertion create(Assertion assertion);
    platform::IOReturn release(platform::PowerAssertionID id);

  private:
    std::map<platform::PowerAssertionID, Assertion> held_;
    platform::PowerAssertionID lastID_ = 0;
};

} // namespace simulated
