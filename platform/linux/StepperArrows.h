#pragma once

#include <QSpinBox>

namespace platform::linux_host {

/// A spin box without its field: nothing but the two arrows, in the desktop's style, and the keys
/// that stand for them.
class StepperArrows final : public QSpinBox {
  public:
    StepperArrows();

  protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace platform::linux_host
