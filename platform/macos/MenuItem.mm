#include "platform/Menu.h"

#include "platform/macos/AppearanceConversions.h"
#include "platform/macos/CallOut.h"
#include "platform/macos/Conversions.h"
#include "platform/macos/MenuPeers.h"
#include "platform/macos/ViewPeer.h"

@implementation QuellbarMenuItemTarget

- (void)choose:(id)sender {
    // Held: the action may take away the last owner of its own item.
    const auto item = self.seamItem != nullptr ? self.seamItem->weak_from_this().lock() : nullptr;
    if (item) {
        platform::macos::callOut([&] { item->peer().action(*item); });
    }
}

@end

namespace platform {

using macos::Object;

namespace {

// AppKit takes an item without an action for one that only shows something.
Object<NSMenuItem*> makeItem(std::string_view title, SEL action, std::string_view keyEquivalent) {
    return Object<NSMenuItem*>::adopt([[NSMenuItem alloc]
        initWithTitle:macos::stringToNSString(title).get()
               action:action
        keyEquivalent:macos::stringToNSString(keyEquivalent).get()]);
}

} // namespace

MenuItem* macos::menuItemOf(NSMenuItem* item) {
    return static_cast<QuellbarMenuItemTarget*>(item.target).seamItem;
}

MenuItem::MenuItem(std::string_view title, Action action, std::string_view keyEquivalent)
    : peer_(std::make_unique<Peer>(Peer {
          .item = makeItem(title, action ? @selector(choose:) : nullptr, keyEquivalent),
          .target = Object<QuellbarMenuItemTarget*>::adopt([[QuellbarMenuItemTarget alloc] init]),
          .action = std::move(action)
      })) {
    peer_->target.get().seamItem = this;
    peer_->item.get().target = peer_->target.get();
}

std::shared_ptr<MenuItem> MenuItem::separatorItem() {
    return std::make_shared<MenuItem>(std::make_unique<Peer>(
        Peer{.item = Object<NSMenuItem*>::share([NSMenuItem separatorItem])}));
}

MenuItem::MenuItem(std::unique_ptr<Peer> peer) : peer_(std::move(peer)) {}

MenuItem::~MenuItem() {
    peer_->target.get().seamItem = nullptr;
}

std::string MenuItem::title() const {
    return macos::nsStringToString(peer_->item.get().title);
}

void MenuItem::setTitle(std::string_view title) {
    peer_->item.get().title = macos::stringToNSString(title).get();
}

ControlState MenuItem::state() const {
    return macos::nsToControlState(peer_->item.get().state);
}

void MenuItem::setState(ControlState state) {
    peer_->item.get().state = macos::controlStateToNS(state);
}

void MenuItem::setSubmenu(std::shared_ptr<Menu> submenu) {
    peer_->item.get().submenu = submenu ? submenu->peer().menu.get() : nil;
    peer_->submenu = std::move(submenu);
}

void MenuItem::setView(std::shared_ptr<View> view) {
    peer_->item.get().view = view ? view->peer().view.get() : nil;
    peer_->view = std::move(view);
}

Menu* MenuItem::menu() const {
    return macos::menuOf(peer_->item.get().menu);
}

} // namespace platform
