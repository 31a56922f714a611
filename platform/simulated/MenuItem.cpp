#include "platform/simulated/Desktop.h"
#include "platform/simulated/Misuse.h"

#include <utility>

struct platform::MenuItem::Peer {
    Peer(std::string_view title, Action action, std::string_view keyEquivalent)
        : item(title, std::move(action), keyEquivalent) {}

    simulated::MenuItem item;
};

namespace simulated {
namespace {

// Points.
constexpr double itemHeight = 22;
constexpr double separatorHeight = 11;

} // namespace

MenuItem& stateOf(const platform::MenuItem& item) {
    return item.peer().item;
}

MenuItem::MenuItem(std::string_view itemTitle, platform::MenuItem::Action action,
                   std::string_view itemKeyEquivalent)
    : title(itemTitle), keyEquivalent(itemKeyEquivalent), action_(std::move(action)) {}

MenuItem::~MenuItem() {
    if (view_ != nullptr) {
        stateOf(*view_).setMenuItem(nullptr);
    }
}

// A menu that enables its items itself leaves those alone that would do nothing.
bool MenuItem::isEnabled() const {
    const bool doesSomething = action_ || submenu_ != nullptr;
    return !isSeparator && menu_ != nullptr && (doesSomething || !menu_->autoenablesItems);
}

Menu* MenuItem::submenu() const {
    return submenu_ == nullptr ? nullptr : &stateOf(*submenu_);
}

View* MenuItem::view() const {
    return view_ == nullptr ? nullptr : &stateOf(*view_);
}

double MenuItem::height() const {
    if (view_ != nullptr) {
        return view()->frame().size.height;
    }
    return isSeparator ? separatorHeight : itemHeight;
}

void MenuItem::requireClosed() const {
    if (menu_ != nullptr && menu_->isOpen()) {
        misuse("an item changes its kind while its menu is open: " + title);
    }
}

void MenuItem::setSubmenu(std::shared_ptr<platform::Menu> submenu) {
    requireClosed();
    submenu_ = std::move(submenu);
}

void MenuItem::setView(std::shared_ptr<platform::View> view) {
    requireClosed();
    if (view != nullptr) {
        stateOf(*view).setMenuItem(self_);
    }
    const auto former = std::exchange(view_, std::move(view));
    if (former != nullptr) {
        stateOf(*former).setMenuItem(nullptr);
    }
}

// The action may drop the item.
void MenuItem::runAction() const {
    const auto kept = self_->shared_from_this();
    if (action_) {
        action_(*kept);
    }
}

} // namespace simulated

namespace platform {

using simulated::desktop;
using simulated::stateOf;

MenuItem::MenuItem(std::unique_ptr<Peer> peer) : peer_(std::move(peer)) {
    stateOf(*this).attach(*this);
}

MenuItem::MenuItem(std::string_view title, Action action, std::string_view keyEquivalent)
    : MenuItem(std::make_unique<Peer>(title, std::move(action), keyEquivalent)) {
    desktop().calls.record("MenuItem", {title, keyEquivalent});
}

MenuItem::~MenuItem() = default;

std::shared_ptr<MenuItem> MenuItem::separatorItem() {
    desktop().calls.record("separatorItem");
    auto peer = std::make_unique<Peer>("", Action(), "");
    peer->item.isSeparator = true;
    return std::make_shared<MenuItem>(std::move(peer));
}

std::string MenuItem::title() const {
    return stateOf(*this).title;
}

void MenuItem::setTitle(std::string_view title) {
    desktop().calls.record("MenuItem::setTitle", {stateOf(*this).title, title});
    stateOf(*this).title = title;
}

ControlState MenuItem::state() const {
    return stateOf(*this).state;
}

void MenuItem::setState(ControlState state) {
    desktop().calls.record("MenuItem::setState", {stateOf(*this).title, simulated::nameOf(state)});
    stateOf(*this).state = state;
}

void MenuItem::setSubmenu(std::shared_ptr<Menu> submenu) {
    desktop().calls.record("setSubmenu", {stateOf(*this).title});
    stateOf(*this).setSubmenu(std::move(submenu));
}

void MenuItem::setView(std::shared_ptr<View> view) {
    desktop().calls.record("setView", {stateOf(*this).title});
    stateOf(*this).setView(std::move(view));
}

// The program's menu, not the desktop's knowledge of it.
Menu* MenuItem::menu() const {
    const simulated::Menu* const menu = stateOf(*this).menu();
    return menu == nullptr ? nullptr : &menu->self();
}

} // namespace platform
