#include "platform/linux/menu/MenuPopup.h"

#include "platform/linux/menu/MenuPeer.h"
#include "platform/linux/x11/Connection.h"
#include "platform/linux/x11/QtConnection.h"

#include <QKeyEvent>

namespace platform::linux_host {

MenuPopup::MenuPopup(Menu::Peer& peer, const QString& title) : QMenu(title), peer_(peer) {
    connect(this, &QMenu::aboutToShow, this, [this] { peer_.willOpen(); });
    connect(this, &QMenu::aboutToHide, this, [this] { peer_.didClose(); });
    connect(this, &QMenu::hovered, this, [this] { peer_.highlightDidChange(); });
}

// Qt tells of an item that becomes the one to be chosen, and not when there is none any more.
bool MenuPopup::event(QEvent* event) {
    const bool isHandled = QMenu::event(event);
    if (event->type() == QEvent::WinIdChange && internalWinId() != 0) {
        setWindowType(static_cast<xcb_window_t>(internalWinId()),
                      Connection::shared().atom(Atom::netWmWindowTypePopupMenu));
    }
    if (isVisible()) {
        peer_.highlightDidChange();
    }
    return isHandled;
}

void MenuPopup::keyPressEvent(QKeyEvent* event) {
    if (!peer_.chooseByKey(event->keyCombination())) {
        QMenu::keyPressEvent(event);
    }
}

} // namespace platform::linux_host
