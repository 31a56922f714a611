#pragma once

#include "platform/Menu.h"
#include "platform/linux/menu/ViewAction.h"

#include <memory>

namespace platform {

/// An action of Qt's, and what the program has said of the item.
struct MenuItem::Peer {
    /// The user has chosen the item, and the menu has closed.
    void wasChosen();
    /// The text of the view is another one: whoever cannot see it reads it on the action.
    void viewDidChange();

    MenuItem* item = nullptr;
    linux_host::ViewAction action;
    std::string title;
    ControlState state = ControlState::off;
    Action handler;
    std::shared_ptr<Menu> submenu;
    Menu* menu = nullptr; ///< that holds the item
};

} // namespace platform
