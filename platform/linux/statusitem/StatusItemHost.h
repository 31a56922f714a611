#pragma once

#include "platform/linux/statusitem/NotifierItem.h"
#include "platform/linux/statusitem/NotifierPanel.h"
#include "platform/linux/statusitem/Strip.h"
#include "platform/linux/statusitem/TrayItem.h"

#include <QMenu>
#include <QTimer>
#include <memory>

namespace platform::linux_host {

/// Keeps a status button on the screen, whatever trays and panels come and go: in the system tray
/// if there is one that takes it, else in a panel that shows what it is told over the session bus,
/// else in a strip of its own. On KDE such a panel comes first. Opens its menu.
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

    /// Whether the item has to be shown in another place than those that come first: it is shown in
    /// one of them, it may be in a moment, or it is in none.
    enum class Need { none, perhaps, certain };
    [[nodiscard]] Need updateTrayItem(Need need);
    [[nodiscard]] Need needAfterTrayItem(Need need) const;
    [[nodiscard]] Need updateNotifier(Need need);
    [[nodiscard]] Need needAfterNotifier(Need need) const;
    void listNotifier();
    void updateStrip(Need need);

    void showContent();
    void openMenu(const PixelRect& item);

    Connection& connection_;
    StatusButtonContent content_;
    std::shared_ptr<Menu> menu_;
    SystemTray tray_;
    std::unique_ptr<TrayItem> item_;
    bool prefersNotifier_ = desktopPrefersNotifiers();
    std::unique_ptr<NotifierPanel> panel_; ///< made when first needed
    std::unique_ptr<NotifierItem> notifier_;
    int notifierGeneration_ = 0; ///< that of the panel's watcher when the notifier was made
    std::unique_ptr<Strip> strip_;
    QTimer trayPatience_;  ///< runs while the tray may still be about to take the item
    QTimer panelPatience_; ///< runs while the panel may
    QTimer updates_;       ///< runs out as soon as the event loop turns
};

} // namespace platform::linux_host
