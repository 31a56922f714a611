#pragma once

#include <QSpinBox>

namespace platform::linux_host {

/// A spin box without its field: nothing but the two arrows, in the desktop's style, and the keys
/// that stand for them.
class StepperArrows final : public QSpinBox {
  public:
    StepperArrows();

    /// Beyond a limit is the other one, also when the step would lead past the limit.
    void stepBy(int steps) override;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace platform::linux_host
