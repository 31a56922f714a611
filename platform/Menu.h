#pragma once

#include "platform/View.h"

#include <any>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

class Menu;

/// What the desktop tells about a menu.
class MenuDelegate {
  public:
    /// The menu is about to be shown: the last moment to change what it says.
    virtual void menuWillOpen(Menu& menu) = 0;

  protected:
    MenuDelegate() = default;
    ~MenuDelegate() = default;
    MenuDelegate(const MenuDelegate&) = default;
    MenuDelegate& operator=(const MenuDelegate&) = default;
};

/// The check mark of a menu item or a checkbox. The values are AppKit's.
enum class ControlState { mixed = -1, off = 0, on = 1 };

/// One line of a menu: a command, a submenu, a separator or a view. Stands for NSMenuItem on macOS,
/// QAction on Linux.
class MenuItem : public std::enable_shared_from_this<MenuItem> {
  public:
    /// Runs when the user chooses the item, after the menu has closed.
    using Action = std::function<void(MenuItem& sender)>;

    /// An item without an action only shows its submenu or its view. `keyEquivalent` is the key
    /// that chooses the item together with Command (on Linux: Control); empty for none.
    explicit MenuItem(std::string_view title, Action action = {},
                      std::string_view keyEquivalent = {});
    [[nodiscard]] static std::shared_ptr<MenuItem> separatorItem();

    [[nodiscard]] std::string title() const;
    void setTitle(std::string_view title);
    [[nodiscard]] ControlState state() const;
    void setState(ControlState state);

    /// Whatever the program wants to find again on the item.
    [[nodiscard]] const std::any& representedObject() const { return representedObject_; }
    void setRepresentedObject(std::any object) { representedObject_ = std::move(object); }

    void setSubmenu(std::shared_ptr<Menu> submenu);

    /// Fills the item with a view, which then draws all of it and sees the pointer's events.
    void setView(std::shared_ptr<View> view);

    /// The menu that holds the item; null before it is added.
    [[nodiscard]] Menu* menu() const;

    struct Peer;
    explicit MenuItem(std::unique_ptr<Peer> peer);
    ~MenuItem();
    MenuItem(const MenuItem&) = delete;
    MenuItem& operator=(const MenuItem&) = delete;
    [[nodiscard]] Peer& peer() const { return *peer_; }

  private:
    std::unique_ptr<Peer> peer_;
    std::any representedObject_;
};

/// A list of items that drops down. It shares its items. Stands for NSMenu on macOS, QMenu on
/// Linux.
class Menu {
  public:
    explicit Menu(std::string_view title = {});

    void setDelegate(std::weak_ptr<MenuDelegate> delegate);
    /// Whether the desktop disables items that nobody would answer. True unless set.
    void setAutoenablesItems(bool autoenables);
    void addItem(const std::shared_ptr<MenuItem>& item);
    /// Closes the menu, and all that it dropped from, at once.
    void cancelTracking();

    struct Peer;
    ~Menu();
    Menu(const Menu&) = delete;
    Menu& operator=(const Menu&) = delete;
    [[nodiscard]] Peer& peer() const { return *peer_; }

  private:
    std::unique_ptr<Peer> peer_;
};

} // namespace platform
