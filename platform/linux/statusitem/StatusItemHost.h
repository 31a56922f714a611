#pragma once

#include "platform/linux/statusitem/Strip.h"
#include "platform/linux/statusitem/TrayItem.h"

#include <QMenu>
#include <QTimer>
#include <memory>

namespace platform::linux_host {

/// Keeps a status button on the screen, whatever trays come and go: in the system tray if there is
/// one that takes it, else in a strip of its own. Opens its menu.
class StatusItemHost {
  public:
    StatusItemHost();
    ~StatusItemHost();

    /// What the button shows. `contentDidChange` has to be called afterwards.
    [[nodiscard]] StatusButtonContent& content() { return content_; }
    void contentDidChange();

    void setMenu(std::shared_ptr<Menu> menu);

    StatusItemHost(const StatusItemHost&) = delete;
    StatusItemHost& operator=(const StatusItemHost&) = delete;

  private:
    void trayDidChange();
    void update();
    void updateLater();
    void updateTrayItem();
    void updateStrip();
    void showContent();
    [[nodiscard]] PixelRect frame() const;
    void openMenu();

    Connection& connection_;
    StatusButtonContent content_;
    std::shared_ptr<Menu> menu_;
    SystemTray tray_;
    std::unique_ptr<TrayItem> item_;
    std::unique_ptr<Strip> strip_;
    QTimer patience_; ///< runs while a tray may still be about to take the item
    QTimer updates_;  ///< runs out as soon as the event loop turns
};

} // namespace platform::linux_host
