#pragma once

#include "platform/Menu.h"
#include "platform/Window.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace simulated {

class Menu;
class View;

/// An item of a menu of the program.
class MenuItem {
  public:
    MenuItem(std::string_view itemTitle, platform::MenuItem::Action action,
             std::string_view itemKeyEquivalent);
    ~MenuItem();
    MenuItem(const MenuItem&) = delete;
    MenuItem& operator=(const MenuItem&) = delete;

    std::string title;
    platform::ControlState state = platform::ControlState::off;
    /// The key that chooses the item together with Command; empty for none.
    const std::string keyEquivalent;
    bool isSeparator = false;

    /// Whether the user can choose the item.
    [[nodiscard]] bool isEnabled() const;
    /// The menu that holds the item, the one that the item opens, and the view that fills it; null
    /// where there is none.
    [[nodiscard]] Menu* menu() const { return menu_; }
    [[nodiscard]] Menu* submenu() const;
    [[nodiscard]] View* view() const;
    /// Points, in an open menu.
    [[nodiscard]] double height() const;

    // For the seam and the menu.
    void attach(platform::MenuItem& self) { self_ = &self; }
    [[nodiscard]] platform::MenuItem& self() const { return *self_; }
    void setMenu(Menu* menu) { menu_ = menu; }
    void setSubmenu(std::shared_ptr<platform::Menu> submenu);
    void setView(std::shared_ptr<platform::View> view);
    void runAction() const;

  private:
    void requireClosed() const;

    const platform::MenuItem::Action action_;
    platform::MenuItem* self_ = nullptr;
    Menu* menu_ = nullptr;
    std::shared_ptr<platform::Menu> submenu_;
    std::shared_ptr<platform::View> view_;
};

/// A menu of the program. The user drops it down from a status item or opens it from another menu,
/// points at its items, chooses one or lets it be. While it is open the run loop tracks: the main
/// queue may turn and time may pass, but only timers of the common modes fire.
class Menu {
  public:
    explicit Menu(std::string_view menuTitle) : title(menuTitle) {}
    ~Menu();
    Menu(const Menu&) = delete;
    Menu& operator=(const Menu&) = delete;

    const std::string title;
    bool autoenablesItems = true;

    [[nodiscard]] std::vector<MenuItem*> items() const;
    /// The first item with this title. Misuse when there is none.
    [[nodiscard]] MenuItem& item(std::string_view itemTitle) const;
    [[nodiscard]] bool isOpen() const { return window_ != nullptr; }
    /// Where an item is, in the coordinates of the menu's window.
    [[nodiscard]] platform::Rect frameOf(const MenuItem& item) const;

    // What the user does with an open menu. Misuse while it is closed.

    /// Moves the pointer to the middle of the item, or to nowhere in the menu.
    void pointAt(const MenuItem& item);
    void pointElsewhere();
    /// Points at an item and clicks. A command's menus close, then it runs; a submenu opens; a view
    /// is told; a separator, or an item that is not enabled, stays as it is.
    void click(MenuItem& item);
    void click(std::string_view itemTitle) { click(item(itemTitle)); }
    /// The menu that an item opens, open now.
    Menu& openSubmenu(std::string_view itemTitle);
    /// Presses Command and a key: the item that it belongs to, in this menu or below, is chosen.
    void pressKeyEquivalent(std::string_view key);
    /// Clicks somewhere else: all open menus close.
    void dismiss();

    // For the seam and the other services.
    void attach(platform::Menu& self) { self_ = &self; }
    [[nodiscard]] platform::Menu& self() const { return *self_; }
    void setDelegate(std::weak_ptr<platform::MenuDelegate> delegate);
    void addItem(std::shared_ptr<platform::MenuItem> item);
    /// Drops down.
    void open();
    /// Closes all open menus if this one is among them.
    void cancelTracking() const;
    void show();
    void hide();

  private:
    [[nodiscard]] MenuItem* itemForKey(std::string_view key) const;
    void requireOpen() const;
    void movePointer(platform::Point to) const;

    platform::Menu* self_ = nullptr;
    std::weak_ptr<platform::MenuDelegate> delegate_;
    std::vector<std::shared_ptr<platform::MenuItem>> items_;
    std::unique_ptr<platform::Window> window_; // while it is open
};

/// What the desktop knows of `menu` and `item`.
[[nodiscard]] Menu& stateOf(const platform::Menu& menu);
[[nodiscard]] MenuItem& stateOf(const platform::MenuItem& item);

/// The menus that are open: one that has dropped down, and those opened from it.
class OpenMenus {
  public:
    [[nodiscard]] const std::vector<Menu*>& all() const { return menus_; }
    [[nodiscard]] bool contain(const Menu& menu) const;

    // For the menus.
    /// A menu drops down. Misuse while another one is open.
    void add(Menu& menu);
    /// A menu opens from an open one, in place of the one that did so before.
    void add(Menu& submenu, const Menu& from);
    /// All of them close, the last one first.
    void close();

  private:
    void closeLast();

    std::vector<Menu*> menus_;
};

} // namespace simulated
