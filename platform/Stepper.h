#pragma once

#include "platform/View.h"

#include <cstdint>
#include <functional>
#include <memory>

namespace platform {

/// Two arrows that step a number up and down. At a limit it goes on at the other one. Stands for
/// NSStepper on macOS, a QSpinBox's arrows on Linux.
class Stepper : public View {
  public:
    /// What to do when the user has stepped; the value has changed already.
    using Action = std::function<void(Stepper& sender)>;

    [[nodiscard]] static std::shared_ptr<Stepper> make(Rect frame, Action action);

    void setRange(double minimum, double maximum);
    void setIncrement(double increment);
    [[nodiscard]] std::int64_t integerValue() const;
    /// Kept within the range. Does not call the action.
    void setIntegerValue(std::int64_t value);

    explicit Stepper(std::unique_ptr<Peer> peer);
};

} // namespace platform
