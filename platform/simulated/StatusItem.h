#pragma once

#include "platform/StatusItem.h"

#include <memory>
#include <vector>

namespace simulated {

class Menu;

/// The button of a status item: what the status bar shows.
struct StatusBarButton {
    std::shared_ptr<platform::Image> image;
    platform::ImagePosition imagePosition = platform::ImagePosition::noImage;
    /// A plain title is one without attributes.
    platform::AttributedString title;
};

/// An item of the program in the status bar.
class StatusItem {
  public:
    StatusItem(double itemLength, std::unique_ptr<platform::StatusBarButton> button);
    ~StatusItem();
    StatusItem(const StatusItem&) = delete;
    StatusItem& operator=(const StatusItem&) = delete;

    const double length; // points, or `platform::StatusItem::variableLength`

    /// Misuse where the desktop shows the item without a button.
    [[nodiscard]] const StatusBarButton& button() const;
    /// Misuse before the item has a menu.
    [[nodiscard]] Menu& menu() const;

    /// The user clicks on the item: its menu drops down. Misuse while a menu is open.
    Menu& openMenu() const;

    // For the seam.
    [[nodiscard]] platform::StatusBarButton* platformButton() const { return button_.get(); }
    void setMenu(std::shared_ptr<platform::Menu> menu) { menu_ = std::move(menu); }

  private:
    const std::unique_ptr<platform::StatusBarButton> button_;
    std::shared_ptr<platform::Menu> menu_;
};

/// The status bar, with the items of this program.
class StatusBar {
  public:
    /// Fault: whether a new item has a button.
    bool givesButtons = true;

    /// In the order in which they were made.
    [[nodiscard]] const std::vector<StatusItem*>& items() const { return items_; }
    /// The only one. Misuse when there is none or more than one.
    [[nodiscard]] StatusItem& item() const;

    // For the seam.
    void add(StatusItem& item) { items_.push_back(&item); }
    void remove(const StatusItem& item);

  private:
    std::vector<StatusItem*> items_;
};

} // namespace simulated
