#include "platform/Stepper.h"

#include "platform/linux/views/StepperArrows.h"
#include "platform/linux/views/ViewPeer.h"

#include <QSignalBlocker>
#include <algorithm>
#include <cmath>
#include <limits>

namespace platform {

using linux_host::StepperArrows;

namespace {

StepperArrows& arrowsOf(const Stepper& stepper) {
    return static_cast<StepperArrows&>(*stepper.peer().widget);
}

// Qt counts in int.
int clampedToInt(double value) {
    return static_cast<int>(std::clamp<double>(std::round(value), std::numeric_limits<int>::min(),
                                               std::numeric_limits<int>::max()));
}

int clampedToInt(std::int64_t value) {
    return static_cast<int>(std::clamp<std::int64_t>(value, std::numeric_limits<int>::min(),
                                                     std::numeric_limits<int>::max()));
}

} // namespace

Stepper::Stepper(std::unique_ptr<Peer> peer) : View(std::move(peer)) {}

// The arrows belong to the stepper, so they never call what is gone.
std::shared_ptr<Stepper> Stepper::make(Rect frame, Action action) {
    auto* const arrows = new StepperArrows;
    auto stepper = std::make_shared<Stepper>(std::make_unique<Peer>(arrows, frame));
    QObject::connect(arrows, &QSpinBox::valueChanged, arrows,
                     [sender = stepper.get(), action = std::move(action)] {
                         if (action) {
                             action(*sender);
                         }
                     });
    return stepper;
}

void Stepper::setRange(double minimum, double maximum) {
    StepperArrows& arrows = arrowsOf(*this);
    const QSignalBlocker silence(arrows);
    arrows.setRange(clampedToInt(minimum), clampedToInt(maximum));
}

void Stepper::setIncrement(double increment) {
    arrowsOf(*this).setSingleStep(clampedToInt(increment));
}

std::int64_t Stepper::integerValue() const {
    return arrowsOf(*this).value();
}

// Qt would go on at the other limit here, too.
void Stepper::setIntegerValue(std::int64_t value) {
    StepperArrows& arrows = arrowsOf(*this);
    const QSignalBlocker silence(arrows);
    arrows.setValue(std::clamp(clampedToInt(value), arrows.minimum(), arrows.maximum()));
}

} // namespace platform
