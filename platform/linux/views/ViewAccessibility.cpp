#include "platform/linux/views/ViewAccessibility.h"

#include "platform/linux/views/FittedLabel.h"
#include "platform/linux/views/ViewPeer.h"
#include "platform/linux/views/ViewWidget.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAccessibleWidget>

namespace platform::linux_host {

namespace {

class ClickableView final : public QAccessibleWidget {
  public:
    explicit ClickableView(ViewWidget* widget)
        : QAccessibleWidget(widget, QAccessible::Button), widget_(*widget) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? widget_.view().peer().text()
                                         : QAccessibleWidget::text(kind);
    }

    [[nodiscard]] QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& name) override {
        if (name == pressAction()) {
            widget_.performClick();
        }
    }

  private:
    ViewWidget& widget_;
};

QAccessibleInterface* describe(const QString&, QObject* object) {
    auto* const widget = dynamic_cast<ViewWidget*>(object);
    return widget != nullptr && widget->view().peer().click ? new ClickableView(widget) : nullptr;
}

bool areOnOneLine(const Rect& a, const Rect& b) {
    return a.minY() < b.maxY() && b.minY() < a.maxY();
}

// Buttons have a text of their own.
bool needsName(const QWidget& widget) {
    return widget.focusPolicy() != Qt::NoFocus &&
           dynamic_cast<const QAbstractButton*>(&widget) == nullptr;
}

FittedLabel* labelBefore(const View& control, const View& content) {
    const View* nearest = nullptr;
    for (const auto& candidate : content.peer().subviews) {
        const Rect frame = candidate->frame();
        const bool isLabel = dynamic_cast<FittedLabel*>(candidate->peer().widget.data()) != nullptr;
        if (isLabel && areOnOneLine(frame, control.frame()) &&
            frame.maxX() <= control.frame().minX() &&
            (nearest == nullptr || frame.maxX() > nearest->frame().maxX())) {
            nearest = candidate.get();
        }
    }
    return nearest != nullptr ? static_cast<FittedLabel*>(nearest->peer().widget.data()) : nullptr;
}

} // namespace

void describeViews() {
    QAccessible::installFactory(describe);
}

// A label can be the buddy of one control alone; what comes after that is named without.
void nameControls(const View& content) {
    for (const auto& control : content.peer().subviews) {
        QWidget& widget = *control->peer().widget;
        FittedLabel* const label = needsName(widget) ? labelBefore(*control, content) : nullptr;
        if (label == nullptr) {
            continue;
        }
        QString name = label->text();
        name.remove(u':');
        widget.setAccessibleName(name);
        if (label->buddy() == nullptr) {
            label->setBuddy(&widget);
        }
    }
}

void announceText(const View& view) {
    if (QAccessible::isActive()) {
        QAccessibleEvent change(view.peer().widget, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&change);
    }
}

} // namespace platform::linux_host
