#pragma once

#include "platform/linux/statusitem/StatusButtonView.h"
#include "platform/linux/statusitem/SystemTray.h"
#include "platform/linux/statusitem/TrayDock.h"

#include <QTimer>

namespace platform::linux_host {

/// A status button in one system tray. Another tray gets another one: its windows may be of another
/// kind.
class TrayItem {
  public:
    /// Asks the tray for a place. `onChange` is called from the event loop when `state` may have
    /// changed.
    TrayItem(Connection& connection, const SystemTray& tray, const StatusButtonContent& content,
             std::function<void()> onPress, std::function<void()> onChange);

    void setContent(const StatusButtonContent& content);

    [[nodiscard]] TrayDock::State state() const { return dock_.state(); }
    /// The tray that this item is for.
    [[nodiscard]] xcb_window_t tray() const { return tray_; }
    /// Where it is, in pixels of the X server.
    [[nodiscard]] PixelRect frame() const { return dock_.frame(); }

    /// Takes the colours that the tray names from now on. Whether it blends is settled for its
    /// item.
    void setStyle(const TrayStyle& style);

  private:
    void updateSurroundings();
    xcb_window_t createWindow();
    void dockDidChange(TrayDock::Change change);
    void readRoom();
    void askForRoom();
    void useRoom();
    [[nodiscard]] int wantedWidth() const;

    Connection& connection_;
    xcb_window_t tray_;
    TrayStyle style_;
    std::function<void()> onChange_;
    StatusButtonView view_;
    TrayDock dock_;
    QSize granted_; ///< empty until the tray has said so
    /// Runs while the tray may still be about to make room.
    QTimer patience_;
    bool isCramped_ = false; ///< the tray has had its time
};

} // namespace platform::linux_host
