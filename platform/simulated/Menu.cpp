#include "platform/simulated/Menu.h"

#include "platform/Window.h"
#include "platform/simulated/Desktop.h"
#include "platform/simulated/Misuse.h"

#include <algorithm>
#include <numeric>

struct platform::Menu::Peer {
    explicit Peer(std::string_view title) : menu(title) {}

    simulated::Menu menu;
};

namespace simulated {
namespace {

// Points.
constexpr double menuWidth = 260;
constexpr double verticalPadding = 5;

platform::Point middleOf(platform::Rect rect) {
    return {rect.minX() + rect.size.width / 2, rect.minY() + rect.size.height / 2};
}

std::unique_ptr<platform::Window> windowOfAMenu() {
    return std::make_unique<platform::Window>(std::make_unique<platform::Window::Peer>(
        platform::Window::Peer{std::make_unique<ProgramWindow>()}));
}

} // namespace

Menu& stateOf(const platform::Menu& menu) {
    return menu.peer().menu;
}

Menu::~Menu() {
    cancelTracking();
    for (MenuItem* const item : items()) {
        item->setMenu(nullptr);
    }
}

std::vector<MenuItem*> Menu::items() const {
    std::vector<MenuItem*> items;
    for (const auto& item : items_) {
        items.push_back(&stateOf(*item));
    }
    return items;
}

MenuItem& Menu::item(std::string_view itemTitle) const {
    for (MenuItem* const item : items()) {
        if (!item->isSeparator && item->title == itemTitle) {
            return *item;
        }
    }
    misuse("there is no item \"" + std::string(itemTitle) + "\" in the menu");
}

platform::Rect Menu::frameOf(const MenuItem& item) const {
    const auto items = this->items();
    const auto itself = std::ranges::find(items, &item);
    if (itself == items.end()) {
        misuse("an item is not in the menu: " + item.title);
    }
    const double below =
        std::accumulate(itself + 1, items.end(), verticalPadding,
                        [](double sum, const MenuItem* next) { return sum + next->height(); });
    return {{0, below}, {menuWidth, item.height()}};
}

void Menu::requireOpen() const {
    if (!isOpen()) {
        misuse("the user finds the menu closed");
    }
}

void Menu::pointAt(const MenuItem& item) {
    movePointer(middleOf(frameOf(item)));
}

void Menu::pointElsewhere() {
    movePointer({-1, -1});
}

void Menu::movePointer(platform::Point to) const {
    requireOpen();
    for (const MenuItem* const item : items()) {
        if (View* const view = item->view()) {
            view->pointerMoved(to);
        }
    }
}

void Menu::click(MenuItem& item) {
    pointAt(item);
    if (View* const view = item.view()) {
        view->releaseMouseButton(middleOf(frameOf(item)));
    } else if (Menu* const submenu = item.submenu()) {
        desktop().openMenus.add(*submenu, *this);
    } else if (item.isEnabled()) {
        desktop().openMenus.close();
        item.runAction();
    }
}

Menu& Menu::openSubmenu(std::string_view itemTitle) {
    MenuItem& parent = item(itemTitle);
    if (parent.submenu() == nullptr) {
        misuse("the item \"" + parent.title + "\" opens no menu");
    }
    click(parent);
    return *parent.submenu();
}

MenuItem* Menu::itemForKey(std::string_view key) const {
    for (MenuItem* const item : items()) {
        if (item->keyEquivalent == key && item->isEnabled()) {
            return item;
        }
        MenuItem* const below =
            item->submenu() == nullptr ? nullptr : item->submenu()->itemForKey(key);
        if (below != nullptr) {
            return below;
        }
    }
    return nullptr;
}

void Menu::pressKeyEquivalent(std::string_view key) {
    requireOpen();
    if (const MenuItem* const item = key.empty() ? nullptr : itemForKey(key)) {
        desktop().openMenus.close();
        item->runAction();
    }
}

void Menu::dismiss() {
    requireOpen();
    desktop().openMenus.close();
}

void Menu::setDelegate(std::weak_ptr<platform::MenuDelegate> delegate) {
    delegate_ = std::move(delegate);
}

void Menu::addItem(std::shared_ptr<platform::MenuItem> item) {
    if (item == nullptr || stateOf(*item).menu() != nullptr) {
        misuse("an item is added to a menu that is none, or is in a menu already");
    }
    stateOf(*item).setMenu(this);
    items_.push_back(std::move(item));
}

void Menu::open() {
    desktop().openMenus.add(*this);
}

void Menu::cancelTracking() const {
    if (desktop().openMenus.contain(*this)) {
        desktop().openMenus.close();
    }
}

// The delegate has the last word on what the menu says, or whether it opens at all.
void Menu::show() {
    if (const auto delegate = delegate_.lock()) {
        delegate->menuWillOpen(*self_);
    }
    if (!desktop().openMenus.contain(*this)) {
        return;
    }
    window_ = windowOfAMenu();
    for (const MenuItem* const item : items()) {
        if (View* const view = item->view()) {
            view->moveToWindow(window_.get(), frameOf(*item).origin);
        }
    }
}

// No view hears that the pointer leaves it.
void Menu::hide() {
    for (const MenuItem* const item : items()) {
        View* const view = item->view();
        if (view != nullptr && isOpen()) {
            view->moveToWindow(nullptr);
        }
    }
    window_.reset();
}

bool OpenMenus::contain(const Menu& menu) const {
    return std::ranges::count(menus_, &menu) > 0;
}

void OpenMenus::add(Menu& menu) {
    if (!menus_.empty()) {
        misuse("the user opens a menu while another one is open");
    }
    desktop().runLoop.beginTracking();
    menus_.push_back(&menu);
    menu.show();
}

void OpenMenus::add(Menu& submenu, const Menu& from) {
    while (menus_.back() != &from) {
        closeLast();
    }
    menus_.push_back(&submenu);
    submenu.show();
}

void OpenMenus::close() {
    while (!menus_.empty()) {
        closeLast();
    }
    desktop().runLoop.endTracking();
}

void OpenMenus::closeLast() {
    Menu* const last = menus_.back();
    menus_.pop_back();
    last->hide();
}

} // namespace simulated

namespace platform {

using simulated::desktop;
using simulated::stateOf;

Menu::Menu(std::string_view title) {
    desktop().calls.record("Menu", {title});
    peer_ = std::make_unique<Peer>(title);
    stateOf(*this).attach(*this);
}

Menu::~Menu() = default;

void Menu::setDelegate(std::weak_ptr<MenuDelegate> delegate) {
    desktop().calls.record("Menu::setDelegate");
    stateOf(*this).setDelegate(std::move(delegate));
}

void Menu::setAutoenablesItems(bool autoenables) {
    desktop().calls.record("setAutoenablesItems", {autoenables ? "true" : "false"});
    stateOf(*this).autoenablesItems = autoenables;
}

void Menu::addItem(const std::shared_ptr<MenuItem>& item) {
    desktop().calls.record("addItem", {item == nullptr ? "none" : stateOf(*item).title});
    stateOf(*this).addItem(item);
}

void Menu::cancelTracking() {
    desktop().calls.record("cancelTracking");
    stateOf(*this).cancelTracking();
}

} // namespace platform
