#include "platform/simulated/StatusItem.h"

#include "platform/simulated/Desktop.h"
#include "platform/simulated/Misuse.h"
#include "platform/simulated/Text.h"

struct platform::StatusBarButton::Peer {
    simulated::StatusBarButton button;
};

struct platform::StatusItem::Peer {
    Peer(double length, std::unique_ptr<StatusBarButton> button)
        : item(length, std::move(button)) {}

    simulated::StatusItem item;
};

namespace simulated {
namespace {

std::unique_ptr<platform::StatusBarButton> newButton() {
    if (!desktop().statusBar.givesButtons) {
        return nullptr;
    }
    return std::make_unique<platform::StatusBarButton>(
        std::make_unique<platform::StatusBarButton::Peer>());
}

} // namespace

StatusItem::StatusItem(double itemLength, std::unique_ptr<platform::StatusBarButton> button)
    : length(itemLength), button_(std::move(button)) {
    desktop().statusBar.add(*this);
}

StatusItem::~StatusItem() {
    desktop().statusBar.remove(*this);
    if (menu_ != nullptr) {
        stateOf(*menu_).cancelTracking();
    }
}

const StatusBarButton& StatusItem::button() const {
    if (button_ == nullptr) {
        misuse("the status item has no button");
    }
    return button_->peer().button;
}

Menu& StatusItem::menu() const {
    if (menu_ == nullptr) {
        misuse("the status item has no menu");
    }
    return stateOf(*menu_);
}

Menu& StatusItem::openMenu() const {
    menu().open();
    return menu();
}

StatusItem& StatusBar::item() const {
    if (items_.size() != 1) {
        misuse("there is not one status item, but " + std::to_string(items_.size()));
    }
    return *items_.front();
}

void StatusBar::remove(const StatusItem& item) {
    std::erase(items_, &item);
}

} // namespace simulated

namespace platform {

using simulated::desktop;

StatusBarButton::StatusBarButton(std::unique_ptr<Peer> peer) : peer_(std::move(peer)) {}
StatusBarButton::~StatusBarButton() = default;

void StatusBarButton::setImage(std::shared_ptr<Image> image) {
    desktop().calls.record("StatusBarButton::setImage", {simulated::nameOf(image.get())});
    peer_->button.image = std::move(image);
}

std::shared_ptr<Image> StatusBarButton::image() const {
    return peer_->button.image;
}

void StatusBarButton::setImagePosition(ImagePosition position) {
    desktop().calls.record("setImagePosition", {std::to_string(static_cast<int>(position))});
    peer_->button.imagePosition = position;
}

void StatusBarButton::setAttributedTitle(const AttributedString& title) {
    desktop().calls.record("setAttributedTitle", {'"' + title.string + '"'});
    peer_->button.title = title;
}

void StatusBarButton::setTitle(std::string_view title) {
    desktop().calls.record("setTitle", {'"' + std::string(title) + '"'});
    peer_->button.title = {.string = std::string(title)};
}

StatusItem::StatusItem(std::unique_ptr<Peer> peer) : peer_(std::move(peer)) {}
StatusItem::~StatusItem() = default;

std::shared_ptr<StatusItem> StatusItem::inSystemStatusBar(double length) {
    desktop().calls.record("inSystemStatusBar", {simulated::text(length)});
    return std::make_shared<StatusItem>(std::make_unique<Peer>(length, simulated::newButton()));
}

StatusBarButton* StatusItem::button() const {
    return peer_->item.platformButton();
}

void StatusItem::setMenu(std::shared_ptr<Menu> menu) {
    desktop().calls.record("StatusItem::setMenu");
    peer_->item.setMenu(std::move(menu));
}

} // namespace platform
