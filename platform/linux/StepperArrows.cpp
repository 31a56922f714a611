#include "platform/linux/StepperArrows.h"

#include <QLineEdit>
#include <QStyleOptionSpinBox>
#include <QStylePainter>

namespace platform::linux_host {

// The field would take digits that nobody sees.
StepperArrows::StepperArrows() {
    setWrapping(true);
    lineEdit()->setReadOnly(true);
    lineEdit()->hide();
}

} // namespace platform::linux_host
