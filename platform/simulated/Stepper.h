#pragma once

#include "platform/Stepper.h"
#include "platform/simulated/View.h"

namespace simulated {

/// A stepper of the program.
class Stepper final : public View {
  public:
    Stepper(platform::Rect frame, platform::Stepper::Action action)
        : View(frame), action_(std::move(action)) {}

    [[nodiscard]] std::string name() const override { return "stepper"; }

    [[nodiscard]] double minimum() const { return minimum_; }
    [[nodiscard]] double maximum() const { return maximum_; }
    [[nodiscard]] double increment() const { return increment_; }
    [[nodiscard]] double value() const { return value_; }

    // What the user does. A step that would lead beyond a limit leads to the other one. Misuse
    // unless the stepper is on the screen.
    void clickUp() { step(increment_); }
    void clickDown() { step(-increment_); }

    // For the seam.
    void setRange(double minimum, double maximum);
    void setIncrement(double increment);
    /// The nearest value within the range.
    void setValue(double value);

  private:
    void step(double by);

    const platform::Stepper::Action action_;
    double minimum_ = 0;
    double maximum_ = 59;
    double increment_ = 1;
    double value_ = 0;
};

/// What the desktop knows of `stepper`.
[[nodiscard]] Stepper& stateOf(const platform::Stepper& stepper);

} // namespace simulated
