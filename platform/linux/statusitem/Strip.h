#pragma once

#include "platform/linux/statusitem/StatusButtonView.h"
#include "platform/linux/x11/ScreenSpace.h"

namespace platform::linux_host {

/// A status button in a small window of its own, for desktops without a system tray: at the top
/// right of the primary screen, as far as the panels leave it free, above all other windows.
class Strip {
  public:
    /// Shows the window.
    Strip(const StatusButtonContent& content, std::function<void()> onPress);

    void setContent(const StatusButtonContent& content);

    /// Where it is, in pixels of the X server.
    [[nodiscard]] PixelRect frame() const;

  private:
    void updateSurroundings();
    void watchScreens();
    void watch(QScreen* screen);
    void place();

    StatusButtonView view_;
};

} // namespace platform::linux_host
