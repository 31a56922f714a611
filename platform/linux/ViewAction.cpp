#include "platform/linux/ViewAction.h"

#include "platform/linux/ViewPeer.h"

namespace platform::linux_host {

QWidget* ViewAction::createWidget(QWidget* parent) {
    if (!view_) {
        return nullptr;
    }
    QWidget* const widget = view_->peer().widget;
    widget->setParent(parent);
    return widget;
}

void ViewAction::deleteWidget(QWidget* widget) {
    widget->hide();
    widget->setParent(nullptr);
}

} // namespace platform::linux_host
