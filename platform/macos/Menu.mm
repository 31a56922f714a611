#include "platform/Menu.h"

#include "platform/macos/CallOut.h"
#include "platform/macos/Conversions.h"
#include "platform/macos/MenuPeers.h"

@implementation QuellbarMenuDelegate

- (void)menuWillOpen:(NSMenu*)menu {
    if (self.seamMenu == nullptr) {
        return;
    }
    if (const auto delegate = self.seamMenu->peer().delegate.lock()) {
        platform::macos::callOut([&] { delegate->menuWillOpen(*self.seamMenu); });
    }
}

@end

namespace platform {

using macos::Object;

Menu* macos::menuOf(NSMenu* menu) {
    return static_cast<QuellbarMenuDelegate*>(menu.delegate).seamMenu;
}

Menu::Menu(std::string_view title)
    : peer_(std::make_unique<Peer>(Peer{
          .menu = Object<NSMenu*>::adopt(
              [[NSMenu alloc] initWithTitle:macos::stringToNSString(title).get()]),
          .adapter = Object<QuellbarMenuDelegate*>::adopt([[QuellbarMenuDelegate alloc] init])})) {
    peer_->adapter.get().seamMenu = this;
    peer_->menu.get().delegate = peer_->adapter.get();
}

Menu::~Menu() {
    peer_->adapter.get().seamMenu = nullptr;
}

void Menu::setDelegate(std::weak_ptr<MenuDelegate> delegate) {
    peer_->delegate = std::move(delegate);
}

void Menu::setAutoenablesItems(bool autoenables) {
    peer_->menu.get().autoenablesItems = autoenables;
}

void Menu::addItem(const std::shared_ptr<MenuItem>& item) {
    [peer_->menu.get() addItem:item->peer().item.get()];
    peer_->items.push_back(item);
}

void Menu::cancelTracking() {
    [peer_->menu.get() cancelTracking];
}

} // namespace platform
