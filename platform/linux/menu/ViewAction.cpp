#include "platform/linux/menu/ViewAction.h"

#include "platform/linux/views/ViewPeer.h"

#include <QStyleOptionMenuItem>

namespace platform::linux_host {

namespace {

int heightOfTextItem(const QWidget& menu) {
    QStyleOptionMenuItem option;
    option.initFrom(&menu);
    option.menuItemType = QStyleOptionMenuItem::Normal;
    option.font = menu.font();
    const QSize text(0, menu.fontMetrics().height());
    return menu.style()->sizeFromContents(QStyle::CT_MenuItem, &option, text, &menu).height();
}

} // namespace

QWidget* ViewAction::createWidget(QWidget* parent) {
    if (!view_) {
        return nullptr;
    }
    QWidget* const widget = view_->peer().widget;
    widget->setParent(parent);
    return widget;
}

void ViewAction::willShowIn(const QWidget& menu) {
    if (view_) {
        view_->peer().widget->setMinimumHeight(heightOfTextItem(menu));
    }
}

void ViewAction::deleteWidget(QWidget* widget) {
    widget->hide();
    widget->setParent(nullptr);
}

} // namespace platform::linux_host
