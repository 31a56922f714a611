#pragma once

#include "platform/Menu.h"
#include "platform/Window.h"

#include <QMenu>
#include <memory>
#include <vector>

namespace platform {

/// A menu of Qt's, and the items that it shows. Whoever pops it up uses `popup` as any QMenu; what
/// the delegate and a view in the menu have to hear follows from that.
struct Menu::Peer {
    Peer(Menu& owner, const QString& title);

    void willOpen();
    void didClose();
    /// Tells the views which of their items is the one that would be chosen.
    void highlightDidChange();
    /// Chooses the item with this key equivalent, here or further down, after closing everything.
    /// False when there is none.
    bool chooseByKey(QKeyCombination key);

    Menu& menu;
    std::unique_ptr<QMenu> popup;
    Window window; ///< that of the menu, for the views in it
    std::vector<std::shared_ptr<MenuItem>> items;
    MenuItem* opener = nullptr; ///< the item that shows this menu beside it
    std::weak_ptr<MenuDelegate> delegate;
    bool autoenablesItems = true;
};

} // namespace platform
