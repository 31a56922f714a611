#include "menubar/StatusItemController.h"

#include "app/AppResources.h"
#include "hotkey/HotKeyManager.h"
#include "keepawake/KeepAwakeManager.h"
#include "minimize/WindowMinimizer.h"
#include "platform/Application.h"
#include "platform/Window.h"
#include "settings/LoginItemManager.h"
#include "settings/Preferences.h"
#include "windows/AboutWindowController.h"
#include "windows/SettingsWindowController.h"

namespace {

using platform::ControlState;
using platform::Menu;
using platform::MenuItem;

constexpr double thirtyMinutes = 1800; // seconds

std::string_view titleOf(ScreenCorner corner) {
    switch (corner) {
    case ScreenCorner::topLeft:
        return "Top Left";
    case ScreenCorner::topRight:
        return "Top Right";
    case ScreenCorner::bottomLeft:
        return "Bottom Left";
    case ScreenCorner::bottomRight:
        return "Bottom Right";
    }
    return {};
}

ControlState stateFor(bool isOn) {
    return isOn ? ControlState::on : ControlState::off;
}

// No item is ever disabled, whatever the state of Keep Awake or of the settings.
std::shared_ptr<Menu> menuOfEnabledItems() {
    auto menu = std::make_shared<Menu>();
    menu->setAutoenablesItems(false);
    return menu;
}

std::shared_ptr<MenuItem> submenuItem(std::string_view title, std::shared_ptr<Menu> submenu) {
    auto item = std::make_shared<MenuItem>(title);
    item->setSubmenu(std::move(submenu));
    return item;
}

// Flips a switch from its own check mark, which is the source of truth here, not the stored value.
// Mark and store are not rolled back, whatever becomes of the side effect that follows.
bool flip(MenuItem& item, const char* key) {
    const bool newValue = item.state() != ControlState::on;
    item.setState(stateFor(newValue));
    Preferences::shared().defaults.setBool(newValue, key);
    return newValue;
}

void bringToFront(platform::Window* window) {
    if (window != nullptr) {
        window->makeKeyAndOrderFront();
    }
    platform::Application::shared().activateIgnoringOtherApps();
}

} // namespace

std::shared_ptr<StatusItemController> StatusItemController::create() {
    std::shared_ptr<StatusItemController> controller(new StatusItemController);
    controller->configureButton();
    controller->buildMenu();
    KeepAwakeManager::shared().delegate = controller;
    return controller;
}

StatusItemController::StatusItemController()
    : statusItem_(platform::StatusItem::inSystemStatusBar(platform::StatusItem::variableLength)) {}

void StatusItemController::configureButton() {
    platform::StatusBarButton* const button = statusItem_->button();
    if (button == nullptr) {
        return;
    }
    showInactiveImageOn(*button);
    button->setImagePosition(platform::ImagePosition::imageLeading);
}

void StatusItemController::buildMenu() {
    const auto menu = menuOfEnabledItems();
    menu->setDelegate(weak_from_this());

    minimizeItem_ = item("Minimize All Windows", &StatusItemController::minimizeAll);
    updateMinimizeItemSubtitle(); // before it is added: the menu never shows the bare title
    keepAwakeTopLevelItem_ = keepAwakeRow();

    menu->addItem(minimizeItem_);
    menu->addItem(MenuItem::separatorItem());
    menu->addItem(keepAwakeTopLevelItem_);
    menu->addItem(submenuItem("Keep Awake Controls", keepAwakeMenu()));
    menu->addItem(submenuItem("Desktop Reveal Corners", cornersMenu()));
    menu->addItem(MenuItem::separatorItem());
    menu->addItem(submenuItem("Preferences", preferencesMenu()));
    menu->addItem(item("Settings…", &StatusItemController::openSettings, ","));
    menu->addItem(MenuItem::separatorItem());
    menu->addItem(item("About & Help", &StatusItemController::openAbout));
    menu->addItem(MenuItem::separatorItem());
    menu->addItem(item("Quit Quellbar", &StatusItemController::quit, "q"));

    statusItem_->setMenu(menu);
}

StatusItemController::ItemPtr StatusItemController::keepAwakeRow() {
    keepAwakeStatusView_ =
        std::make_shared<KeepAwakeMenuItemView>(platform::Rect{{0, 0}, {260, 22}});
    keepAwakeStatusView_->onClick = [weak = weak_from_this()] {
        if (const auto controller = weak.lock()) {
            controller->toggleKeepAwake(*controller->keepAwakeTopLevelItem_);
        }
    };
    keepAwakeStatusView_->refresh(false, 0);
    auto row = std::make_shared<MenuItem>("");
    row->setView(keepAwakeStatusView_);
    return row;
}

// The minus is the typographic one, U+2212.
StatusItemController::MenuPtr StatusItemController::keepAwakeMenu() {
    keepAwakeToggleItem_ = item("Turn On", &StatusItemController::toggleKeepAwake);
    auto menu = menuOfEnabledItems();
    menu->addItem(keepAwakeToggleItem_);
    menu->addItem(MenuItem::separatorItem());
    menu->addItem(item("− 30 min", &StatusItemController::subtract30));
    menu->addItem(item("+ 30 min", &StatusItemController::add30));
    return menu;
}

StatusItemController::MenuPtr StatusItemController::cornersMenu() {
    auto menu = menuOfEnabledItems();
    for (const ScreenCorner corner : allScreenCorners) {
        const auto cornerItem = item(titleOf(corner), &StatusItemController::toggleCorner);
        cornerItem->setRepresentedObject(corner);
        cornerItem->setState(stateFor(Preferences::shared().hotCorners().contains(corner)));
        menu->addItem(cornerItem);
    }
    return menu;
}

StatusItemController::MenuPtr StatusItemController::preferencesMenu() {
    autoLaunchItem_ = switchItem("Auto Launch at Login", &StatusItemController::toggleAutoLaunch,
                                 Preferences::autoLaunchAtLoginKey);
    dockIconItem_ = switchItem("Enable Dock Icon", &StatusItemController::toggleDockIcon,
                               Preferences::enableDockIconKey);
    shortcutsItem_ = switchItem("Enable Shortcuts", &StatusItemController::toggleShortcuts,
                                Preferences::shortcutsEnabledKey);
    auto menu = menuOfEnabledItems();
    menu->addItem(autoLaunchItem_);
    menu->addItem(dockIconItem_);
    menu->addItem(shortcutsItem_);
    return menu;
}

// The target of every action is this controller, held weakly.
StatusItemController::ItemPtr StatusItemController::item(std::string_view title, Action action,
                                                         std::string_view keyEquivalent) {
    return std::make_shared<MenuItem>(
        title,
        [weak = weak_from_this(), action](MenuItem& sender) {
            if (const auto controller = weak.lock()) {
                (*controller.*action)(sender);
            }
        },
        keyEquivalent);
}

StatusItemController::ItemPtr StatusItemController::switchItem(std::string_view title,
                                                               Action action, const char* key) {
    auto newItem = item(title, action);
    newItem->setState(stateFor(Preferences::shared().defaults.boolForKey(key)));
    return newItem;
}

// There are two spaces, and the shortcut is shown whether or not shortcuts are enabled.
void StatusItemController::updateMinimizeItemSubtitle() {
    minimizeItem_->setTitle("Minimize All Windows  (" +
                            Preferences::shared().minimizeAllShortcut().displayString() + ")");
}

void StatusItemController::menuWillOpen(Menu&) {
    updateMinimizeItemSubtitle();
}

void StatusItemController::minimizeAll(MenuItem&) {
    WindowMinimizer::minimizeAllWindows();
}

void StatusItemController::toggleKeepAwake(MenuItem&) {
    KeepAwakeManager& manager = KeepAwakeManager::shared();
    if (manager.isActive()) {
        manager.stop();
    } else {
        manager.start();
    }
}

// From idle: a run of the default length, and thirty minutes more.
void StatusItemController::add30(MenuItem&) {
    KeepAwakeManager& manager = KeepAwakeManager::shared();
    if (!manager.isActive()) {
        manager.start();
    }
    manager.adjust(thirtyMinutes);
}

// Starts nothing, on purpose.
void StatusItemController::subtract30(MenuItem&) {
    KeepAwakeManager::shared().adjust(-thirtyMinutes);
}

// Nothing is restarted: the corner monitor reads the set at its next poll.
void StatusItemController::toggleCorner(MenuItem& sender) {
    const auto* const corner = std::any_cast<ScreenCorner>(&sender.representedObject());
    if (corner == nullptr) {
        return;
    }
    const bool wasOn = sender.state() == ControlState::on;
    sender.setState(stateFor(!wasOn));
    ScreenCornerSet corners = Preferences::shared().hotCorners();
    if (wasOn) {
        corners.remove(*corner);
    } else {
        corners.insert(*corner);
    }
    Preferences::shared().setHotCorners(corners);
}

void StatusItemController::toggleAutoLaunch(MenuItem&) {
    LoginItemManager::setEnabled(flip(*autoLaunchItem_, Preferences::autoLaunchAtLoginKey));
}

void StatusItemController::toggleDockIcon(MenuItem&) {
    const bool isOn = flip(*dockIconItem_, Preferences::enableDockIconKey);
    platform::Application::shared().setActivationPolicy(
        isOn ? platform::ActivationPolicy::regular : platform::ActivationPolicy::accessory);
}

void StatusItemController::toggleShortcuts(MenuItem&) {
    if (flip(*shortcutsItem_, Preferences::shortcutsEnabledKey)) {
        HotKeyManager::shared().registerHotKey(Preferences::shared().minimizeAllShortcut());
    } else {
        HotKeyManager::shared().unregisterHotKey();
    }
}

void StatusItemController::openSettings(MenuItem&) {
    showSettings();
}

void StatusItemController::showSettings() {
    bringToFront(SettingsWindowController::shared().window());
}

void StatusItemController::openAbout(MenuItem&) {
    bringToFront(AboutWindowController::shared().window());
}

void StatusItemController::quit(MenuItem&) {
    platform::Application::shared().terminate();
}

void StatusItemController::keepAwakeDidChangeState(bool active, double remaining) {
    keepAwakeToggleItem_->setTitle(active ? "Turn Off" : "Turn On");
    keepAwakeStatusView_->refresh(active, remaining);
    platform::StatusBarButton* const button = statusItem_->button();
    if (button == nullptr) {
        return;
    }
    if (active) {
        showActive(*button, remaining);
    } else {
        showInactive(*button);
    }
}

// Drawn in its own colours, not tinted by the menu bar. The space that leads the time separates it
// from the icon and is part of the text.
void StatusItemController::showActive(platform::StatusBarButton& button, double remaining) {
    const auto image = AppResources::image("menubar_icon_active");
    button.setImage(image);
    if (image) {
        image->setTemplate(false);
    }
    button.setAttributedTitle({.string = " " + KeepAwakeManager::formatted(remaining),
                               .foregroundColor = platform::Color::systemRed,
                               .font = platform::Font::menuBar(0),
                               .baselineOffset = 0});
}

void StatusItemController::showInactive(platform::StatusBarButton& button) {
    showInactiveImageOn(button);
    button.setAttributedTitle({.string = ""});
    button.setTitle("");
}

void StatusItemController::showInactiveImageOn(platform::StatusBarButton& button) {
    const auto image = AppResources::image("menubar_icon");
    if (image) {
        image->setTemplate(true);
    }
    button.setImage(image);
}
