#include "platform/linux/menu/MenuItemPeer.h"
#include "platform/linux/menu/MenuPeer.h"
#include "platform/linux/views/QStrings.h"
#include "platform/linux/views/ViewPeer.h"

#include <utility>

namespace platform {

using linux_host::titleFrom;

namespace {

// Command is Control here, as in the menus of every Linux desktop.
QKeySequence keySequenceFrom(std::string_view keyEquivalent) {
    return keyEquivalent.empty()
               ? QKeySequence()
               : QKeySequence(QStringLiteral("Ctrl+") + linux_host::qStringFrom(keyEquivalent));
}

// For a view a click is a mouse button's going up over it.
void click(View& view) {
    const QWidget& widget = *view.peer().widget;
    const QPoint center = widget.mapTo(widget.window(), widget.rect().center());
    view.mouseUp(
        {.locationInWindow = {.x = static_cast<double>(center.x()),
                              .y = static_cast<double>(widget.window()->height() - center.y())}});
}

void forgetView(MenuItem::Peer& peer) {
    if (const auto& view = peer.action.view()) {
        view->peer().menuItem = nullptr;
    }
}

// A menu asks an action for its widget when it takes it in, and not again.
void takeInAgain(QMenu& menu, QAction* action) {
    const auto actions = menu.actions();
    QAction* const next = actions.value(actions.indexOf(action) + 1);
    menu.removeAction(action);
    menu.insertAction(next, action);
}

} // namespace

MenuItem::MenuItem(std::unique_ptr<Peer> peer) : peer_(std::move(peer)) {
    peer_->item = this;
    QObject::connect(&peer_->action, &QAction::triggered, &peer_->action,
                     [this] { peer_->wasChosen(); });
}

MenuItem::MenuItem(std::string_view title, Action action, std::string_view keyEquivalent)
    : MenuItem(std::make_unique<Peer>()) {
    peer_->handler = std::move(action);
    peer_->action.setShortcut(keySequenceFrom(keyEquivalent));
    peer_->action.setShortcutVisibleInContextMenu(true);
    setTitle(title);
}

// Out of the menu first: while it is in there, Qt takes the view's widget for the action's.
MenuItem::~MenuItem() {
    if (peer_->menu != nullptr) {
        peer_->menu->peer().popup->removeAction(&peer_->action);
    }
    setSubmenu(nullptr);
    forgetView(*peer_);
}

std::shared_ptr<MenuItem> MenuItem::separatorItem() {
    auto item = std::make_shared<MenuItem>("");
    item->peer().action.setSeparator(true);
    return item;
}

std::string MenuItem::title() const {
    return peer_->title;
}

void MenuItem::setTitle(std::string_view title) {
    peer_->title = title;
    peer_->action.setText(titleFrom(title));
}

ControlState MenuItem::state() const {
    return peer_->state;
}

// Only an item that has been given a state has a place for the mark.
void MenuItem::setState(ControlState state) {
    peer_->state = state;
    peer_->action.setCheckable(true);
    peer_->action.setChecked(state == ControlState::on);
}

void MenuItem::setSubmenu(std::shared_ptr<Menu> submenu) {
    if (peer_->submenu) {
        peer_->submenu->peer().opener = nullptr;
    }
    peer_->submenu = std::move(submenu);
    peer_->action.setMenu(peer_->submenu ? peer_->submenu->peer().popup.get() : nullptr);
    if (peer_->submenu) {
        peer_->submenu->peer().opener = this;
    }
}

// The menu handles the mouse for the view: a widget that did it by itself would miss the click that
// comes while a submenu is open, and the pointer's leaving.
void MenuItem::setView(std::shared_ptr<View> view) {
    forgetView(*peer_);
    if (view) {
        view->peer().menuItem = this;
        view->peer().widget->setAttribute(Qt::WA_TransparentForMouseEvents);
    }
    peer_->action.setView(std::move(view));
    peer_->viewDidChange();
    if (peer_->menu != nullptr) {
        takeInAgain(*peer_->menu->peer().popup, &peer_->action);
    }
}

Menu* MenuItem::menu() const {
    return peer_->menu;
}

// Qt has turned the mark over by itself; here it is the program's to set. The item stays until its
// action has come back.
void MenuItem::Peer::wasChosen() {
    const auto kept = item->shared_from_this();
    action.setChecked(state == ControlState::on);
    if (const auto& view = action.view()) {
        click(*view);
    } else if (handler) {
        handler(*item);
    }
}

void MenuItem::Peer::viewDidChange() {
    if (const auto& view = action.view()) {
        action.setText(titleFrom(view->peer().text().toStdString()));
    }
}

} // namespace platform
