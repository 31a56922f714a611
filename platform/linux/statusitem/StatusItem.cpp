#include "platform/StatusItem.h"

#include "platform/linux/statusitem/StatusItemHost.h"

namespace platform {

using linux_host::StatusItemHost;

struct StatusBarButton::Peer {
    StatusItemHost& host;
};

struct StatusItem::Peer {
    StatusItemHost host;
    StatusBarButton button{
        std::make_unique<StatusBarButton::Peer>(StatusBarButton::Peer{.host = host})};
};

StatusBarButton::StatusBarButton(std::unique_ptr<Peer> peer) : peer_(std::move(peer)) {}

StatusBarButton::~StatusBarButton() = default;

void StatusBarButton::setImage(std::shared_ptr<Image> image) {
    peer_->host.content().image = std::move(image);
    peer_->host.contentDidChange();
}

std::shared_ptr<Image> StatusBarButton::image() const {
    return peer_->host.content().image;
}

void StatusBarButton::setImagePosition(ImagePosition position) {
    peer_->host.content().imagePosition = position;
    peer_->host.contentDidChange();
}

void StatusBarButton::setAttributedTitle(const AttributedString& title) {
    peer_->host.content().title = title;
    peer_->host.contentDidChange();
}

void StatusBarButton::setTitle(std::string_view title) {
    setAttributedTitle({.string = std::string(title)});
}

StatusItem::StatusItem(std::unique_ptr<Peer> peer) : peer_(std::move(peer)) {}

StatusItem::~StatusItem() = default;

// Every item is as wide as its content needs: a tray has its own mind about widths.
std::shared_ptr<StatusItem> StatusItem::inSystemStatusBar(double) {
    return std::make_shared<StatusItem>(std::make_unique<Peer>());
}

StatusBarButton* StatusItem::button() const {
    return &peer_->button;
}

void StatusItem::setMenu(std::shared_ptr<Menu> menu) {
    peer_->host.setMenu(std::move(menu));
}

} // namespace platform
