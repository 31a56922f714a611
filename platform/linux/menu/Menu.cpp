#include "platform/linux/menu/MenuItemPeer.h"
#include "platform/linux/menu/MenuPeer.h"
#include "platform/linux/menu/MenuPopup.h"
#include "platform/linux/views/QStrings.h"
#include "platform/linux/views/ViewPeer.h"
#include "platform/linux/windows/WindowPeer.h"

namespace platform {

namespace {

Menu& outermost(Menu& menu) {
    const MenuItem* const opener = menu.peer().opener;
    return opener != nullptr && opener->menu() != nullptr ? outermost(*opener->menu()) : menu;
}

// In this menu, or in one that drops from it.
MenuItem* findByKey(const Menu& menu, const QKeySequence& key) {
    for (const auto& item : menu.peer().items) {
        const MenuItem::Peer& peer = item->peer();
        if (peer.action.shortcut() == key) {
            return item.get();
        }
        MenuItem* const found = peer.submenu ? findByKey(*peer.submenu, key) : nullptr;
        if (found != nullptr) {
            return found;
        }
    }
    return nullptr;
}

bool hasSomebodyToAnswer(const MenuItem::Peer& item) {
    return item.handler || item.submenu || item.action.view();
}

void moveToWindow(View& view, Window* window) {
    view.peer().window = window;
    view.peer().moveToWindow();
}

} // namespace

Menu::Menu(std::string_view title)
    : peer_(std::make_unique<Peer>(*this, linux_host::titleFrom(title))) {}

Menu::~Menu() {
    for (const auto& item : peer_->items) {
        item->peer().menu = nullptr;
    }
}

void Menu::setDelegate(std::weak_ptr<MenuDelegate> delegate) {
    peer_->delegate = std::move(delegate);
}

void Menu::setAutoenablesItems(bool autoenables) {
    peer_->autoenablesItems = autoenables;
}

void Menu::addItem(const std::shared_ptr<MenuItem>& item) {
    item->peer().menu = this;
    peer_->items.push_back(item);
    peer_->popup->addAction(&item->peer().action);
}

void Menu::cancelTracking() {
    outermost(*this).peer().popup->close();
}

Menu::Peer::Peer(Menu& owner, const QString& title)
    : menu(owner), popup(std::make_unique<linux_host::MenuPopup>(*this, title)),
      window(
          std::make_unique<Window::Peer>(Window::Peer{.widget = popup.get(), .contentView = {}})) {}

void Menu::Peer::willOpen() {
    if (const auto told = delegate.lock()) {
        told->menuWillOpen(menu);
    }
    for (const auto& item : items) {
        MenuItem::Peer& peer = item->peer();
        peer.action.setEnabled(!autoenablesItems || hasSomebodyToAnswer(peer));
        peer.action.willShowIn(*popup);
        if (const auto& view = peer.action.view()) {
            moveToWindow(*view, &window);
        }
    }
}

void Menu::Peer::didClose() {
    for (const auto& item : items) {
        if (const auto& view = item->peer().action.view()) {
            view->peer().setPointerInside(false);
            moveToWindow(*view, nullptr);
        }
    }
}

void Menu::Peer::highlightDidChange() {
    for (const auto& item : items) {
        if (const auto& view = item->peer().action.view()) {
            view->peer().setPointerInside(popup->activeAction() == &item->peer().action);
        }
    }
}

bool Menu::Peer::chooseByKey(QKeyCombination key) {
    Menu& outer = outermost(menu);
    MenuItem* const item = findByKey(outer, QKeySequence(key));
    if (item == nullptr) {
        return false;
    }
    outer.cancelTracking();
    item->peer().action.trigger();
    return true;
}

} // namespace platform
