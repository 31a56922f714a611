#include "platform/Stepper.h"

#include "platform/macos/Conversions.h"
#include "platform/macos/ViewPeer.h"

namespace platform {

std::shared_ptr<Stepper> Stepper::make(Rect frame, Action action) {
    const auto native = macos::Object<NSStepper*>::adopt(
        [[NSStepper alloc] initWithFrame:macos::rectToNSRect(frame)]);
    auto stepper = std::make_shared<Stepper>(std::make_unique<Peer>(native.get()));
    macos::setControlAction(*stepper, [weak = std::weak_ptr(stepper), action = std::move(action)] {
        if (const auto sender = weak.lock()) {
            action(*sender);
        }
    });
    return stepper;
}

Stepper::Stepper(std::unique_ptr<Peer> peer) : View(std::move(peer)) {}

void Stepper::setRange(double minimum, double maximum) {
    auto* const stepper = macos::controlOf<NSStepper>(*this);
    stepper.minValue = minimum;
    stepper.maxValue = maximum;
}

void Stepper::setIncrement(double increment) {
    macos::controlOf<NSStepper>(*this).increment = increment;
}

std::int64_t Stepper::integerValue() const {
    return macos::controlOf<NSStepper>(*this).integerValue;
}

void Stepper::setIntegerValue(std::int64_t value) {
    macos::controlOf<NSStepper>(*this).integerValue = static_cast<NSInteger>(value);
}

} // namespace platform
