#include "platform/linux/views/StepperArrows.h"

#include <QLineEdit>
#include <QStyleOptionSpinBox>
#include <QStylePainter>

namespace platform::linux_host {

// Qt disables an arrow at its limit unless the numbers wrap. The field would take digits that
// nobody sees.
StepperArrows::StepperArrows() {
    setWrapping(true);
    lineEdit()->setReadOnly(true);
    lineEdit()->hide();
}

void StepperArrows::stepBy(int steps) {
    const qint64 next = value() + qint64{steps} * singleStep();
    if (next > maximum()) {
        setValue(minimum());
    } else if (next < minimum()) {
        setValue(maximum());
    } else {
        setValue(static_cast<int>(next));
    }
}

// No style draws the arrows without the field that they belong to; what is left of that in so
// narrow a widget is cut off.
void StepperArrows::paintEvent(QPaintEvent*) {
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    QStylePainter painter(this);
    const QRect up =
        style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, this);
    painter.setClipRect(rect().adjusted(up.left() - 1, 0, 0, 0));
    painter.drawComplexControl(QStyle::CC_SpinBox, option);
}

} // namespace platform::linux_host
