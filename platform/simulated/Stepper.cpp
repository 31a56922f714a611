#include "platform/simulated/Stepper.h"

#include "platform/simulated/Desktop.h"
#include "platform/simulated/Misuse.h"
#include "platform/simulated/Text.h"

#include <algorithm>

namespace simulated {
namespace {

// Every whole number up to here is exact.
constexpr double greatest = 0x1p53;

} // namespace

Stepper& stateOf(const platform::Stepper& stepper) {
    return static_cast<Stepper&>(*stepper.peer().view);
}

void Stepper::setRange(double minimum, double maximum) {
    if (!(-greatest <= minimum && minimum <= maximum && maximum <= greatest)) {
        misuse("a stepper has no range");
    }
    minimum_ = minimum;
    maximum_ = maximum;
    setValue(value_);
}

void Stepper::setIncrement(double increment) {
    if (!(increment > 0)) {
        misuse("a stepper does not step forward");
    }
    increment_ = increment;
}

void Stepper::setValue(double value) {
    value_ = std::clamp(value, minimum_, maximum_);
}

void Stepper::step(double by) {
    click();
    const double next = value_ + by;
    if (next > maximum_) {
        value_ = minimum_;
    } else {
        value_ = next < minimum_ ? maximum_ : next;
    }
    if (action_) {
        action_(static_cast<platform::Stepper&>(self()));
    }
}

} // namespace simulated

namespace platform {

using simulated::desktop;
using simulated::stateOf;
using simulated::text;

Stepper::Stepper(std::unique_ptr<Peer> peer) : View(std::move(peer)) {}

std::shared_ptr<Stepper> Stepper::make(Rect frame, Action action) {
    desktop().calls.record("Stepper::make", {text(frame)});
    return std::make_shared<Stepper>(std::make_unique<Peer>(
        Peer{std::make_unique<simulated::Stepper>(frame, std::move(action))}));
}

void Stepper::setRange(double minimum, double maximum) {
    desktop().calls.record("setRange", {text(minimum), text(maximum)});
    stateOf(*this).setRange(minimum, maximum);
}

void Stepper::setIncrement(double increment) {
    desktop().calls.record("setIncrement", {text(increment)});
    stateOf(*this).setIncrement(increment);
}

std::int64_t Stepper::integerValue() const {
    return static_cast<std::int64_t>(stateOf(*this).value());
}

void Stepper::setIntegerValue(std::int64_t value) {
    desktop().calls.record("Stepper::setIntegerValue", {std::to_string(value)});
    stateOf(*this).setValue(static_cast<double>(value));
}

} // namespace platform
