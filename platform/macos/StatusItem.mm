#include "platform/StatusItem.h"

#include "platform/macos/AppearanceConversions.h"
#include "platform/macos/Conversions.h"
#include "platform/macos/ImagePeer.h"
#include "platform/macos/MenuPeers.h"

namespace platform {

using macos::Object;

struct StatusBarButton::Peer {
    Object<NSStatusBarButton*> button;
    std::shared_ptr<Image> image;
};

struct StatusItem::Peer {
    Object<NSStatusItem*> item; // the bar does not keep it: without this owner it vanishes
    std::unique_ptr<StatusBarButton> button;
    std::shared_ptr<Menu> menu;
};

namespace {

CGFloat lengthToNS(double length) {
    return length == StatusItem::variableLength ? NSVariableStatusItemLength : length;
}

std::unique_ptr<StatusBarButton> buttonOf(NSStatusItem* item) {
    NSStatusBarButton* const button = item.button;
    if (button == nil) {
        return nullptr;
    }
    return std::make_unique<StatusBarButton>(std::make_unique<StatusBarButton::Peer>(
        StatusBarButton::Peer{.button = Object<NSStatusBarButton*>::share(button)}));
}

} // namespace

StatusBarButton::StatusBarButton(std::unique_ptr<Peer> peer) : peer_(std::move(peer)) {}

StatusBarButton::~StatusBarButton() = default;

void StatusBarButton::setImage(std::shared_ptr<Image> image) {
    peer_->button.get().image = macos::imageToNSImage(image);
    peer_->image = std::move(image);
}

std::shared_ptr<Image> StatusBarButton::image() const {
    return peer_->image;
}

void StatusBarButton::setImagePosition(ImagePosition position) {
    peer_->button.get().imagePosition = macos::imagePositionToNS(position);
}

void StatusBarButton::setAttributedTitle(const AttributedString& title) {
    peer_->button.get().attributedTitle = macos::attributedStringToNSAttributedString(title).get();
}

void StatusBarButton::setTitle(std::string_view title) {
    peer_->button.get().title = macos::stringToNSString(title).get();
}

std::shared_ptr<StatusItem> StatusItem::inSystemStatusBar(double length) {
    NSStatusItem* const item =
        [NSStatusBar.systemStatusBar statusItemWithLength:lengthToNS(length)];
    return std::make_shared<StatusItem>(std::make_unique<Peer>(
        Peer{.item = Object<NSStatusItem*>::share(item), .button = buttonOf(item)}));
}

StatusItem::StatusItem(std::unique_ptr<Peer> peer) : peer_(std::move(peer)) {}

StatusItem::~StatusItem() = default;

StatusBarButton* StatusItem::button() const {
    return peer_->button.get();
}

void StatusItem::setMenu(std::shared_ptr<Menu> menu) {
    peer_->item.get().menu = menu ? menu->peer().menu.get() : nil;
    peer_->menu = std::move(menu);
}

} // namespace platform
