#pragma once

#include "tests/desktop/Session.h"
#include "tests/desktop/support/Menus.h"
#include "tests/desktop/support/Pointer.h"
#include "tests/desktop/support/StatusItem.h"
#include "tests/desktop/support/Tray.h"

#include <optional>

namespace desktop {

/// The items of the program's menu and of its submenus, from the top, separators left out.
namespace item {
inline constexpr std::size_t minimizeAll = 0;
inline constexpr std::size_t row = 1;
inline constexpr std::size_t keepAwakeControls = 2;
inline constexpr std::size_t corners = 3;
inline constexpr std::size_t preferences = 4;
inline constexpr std::size_t settings = 5;
inline constexpr std::size_t about = 6;
inline constexpr std::size_t quit = 7;
inline constexpr std::size_t count = 8;
} // namespace item

/// A submenu: the item that opens it, and how many items it has itself.
struct Submenu {
    std::size_t opener;
    std::size_t count;
};
inline constexpr Submenu keepAwakeMenu{item::keepAwakeControls, 3};
inline constexpr Submenu cornersMenu{item::corners, 4};
inline constexpr Submenu preferencesMenu{item::preferences, 3};

/// Somebody at the desktop who uses the program's menu, with the pointer.
class MenuUser {
  public:
    explicit MenuUser(Session& session)
        : session_(session), item_(session.desktop.display()), menus_(session.desktop.display()),
          pointer_(session.desktop.display()) {}

    [[nodiscard]] const StatusItem& item() const { return item_; }
    [[nodiscard]] const Menus& menus() const { return menus_; }
    [[nodiscard]] Pointer& pointer() { return pointer_; }

    /// Clicks the status item and waits for the menu. An item that has gone from under the pointer,
    /// as it may when a panel comes or goes, is clicked again where it is then.
    void openMenu(std::uint8_t button = 1) {
        ItemSight clicked = clickItem(button);
        waitUntil(
            [&] {
                const bool isOpen = !menus_.frames().empty();
                const auto sight = item_.look();
                if (!isOpen && sight && sight->centerX() != clicked.centerX()) {
                    clicked = clickItem(button);
                }
                return isOpen;
            },
            "the menu");
        lines_ = menus_.waitForItems(item::count);
    }

    /// Opens the menu and clicks an item of it.
    void choose(std::size_t index) {
        openMenu();
        clickLine(0, lines_.at(index));
        menus_.waitUntilOpen(0);
        session_.settle();
    }

    /// Opens the menu and a submenu of it.
    void openSubmenu(const Submenu& submenu) {
        openMenu();
        clickLine(0, lines_.at(submenu.opener));
        menus_.waitUntilOpen(2);
        lines_ = menus_.waitForItems(submenu.count);
    }

    /// Opens the menu and clicks an item of a submenu.
    void choose(const Submenu& submenu, std::size_t index) {
        openSubmenu(submenu);
        clickLine(1, lines_.at(index));
        menus_.waitUntilOpen(0);
        session_.settle();
    }

    /// Where an item of the menu that was opened last is, from the top of the screen.
    [[nodiscard]] int lineOf(std::size_t index) const { return lines_.at(index); }

    /// Rests on an item of a menu: 0 for the first one, 1 for its submenu.
    void moveToLine(std::size_t menu, int line) {
        const Geometry frame = menus_.frames().at(menu);
        pointer_.moveTo(frame.x + frame.width / 3, line);
        pointer_.moveTo(frame.x + frame.width / 3 + 2, line); // the first one enters the menu
    }

  private:
    ItemSight clickItem(std::uint8_t button) {
        const ItemSight sight = item_.waitUntil([](const ItemSight&) { return true; }, "an item");
        pointer_.moveTo(sight.centerX(), sight.centerY());
        pointer_.click(button);
        return sight;
    }

    void clickLine(std::size_t menu, int line) {
        moveToLine(menu, line);
        pointer_.click();
    }

    Session& session_;
    StatusItem item_;
    Menus menus_;
    Pointer pointer_;
    std::vector<int> lines_;
};

} // namespace desktop
