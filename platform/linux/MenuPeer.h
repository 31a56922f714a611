#pragma once

#include "platform/Menu.h"

#include <QMenu>
#include <memory>
#include <vector>

namespace platform {

/// A menu of Qt's, and the items that it shows. Whoever pops it up uses `popup` as any QMenu; what
/// the delegate and the row have to hear follows from its signals.
struct Menu::Peer {
    std::unique_ptr<QMenu> popup;
    std::vector<std::shared_ptr<MenuItem>> items;
    std::weak_ptr<MenuDelegate> delegate;
    bool autoenablesItems = true;
};

} // namespace platform
