#include "platform/linux/views/TextColor.h"

#include "platform/linux/views/Appearance.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace platform::linux_host {

TextColor::TextColor(QWidget& widget) : QObject(&widget), widget_(widget) {
    widget.installEventFilter(this);
}

void TextColor::setColor(Color color) {
    color_ = color;
    apply();
}

bool TextColor::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ParentChange) {
        apply();
    }
    return false;
}

// From the surroundings: the widget's own palette has the colour of the last time. Setting it again
// is a change of the palette again.
void TextColor::apply() {
    const QWidget* const around = widget_.parentWidget();
    const QPalette surroundings = around != nullptr ? around->palette() : QApplication::palette();
    const QColor color = qColor(color_, surroundings);
    const QPalette::ColorRole role = widget_.foregroundRole();
    QPalette palette = widget_.palette();
    if (palette.color(role) != color) {
        palette.setColor(role, color);
        widget_.setPalette(palette);
    }
}

} // namespace platform::linux_host
