#pragma once

#include "platform/linux/x11/Connection.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace platform::linux_host {

/// How a system tray says that what it shows should look.
struct TrayStyle {
    /// Whether its windows have an alpha channel, and so should those that it takes.
    bool blends = false;
    /// The colour of text and symbols, as 0xRRGGBB; absent in a tray that names none.
    std::optional<std::uint32_t> foreground;
};

/// The system tray of the desktop: a program that shows small windows of others in a panel of its
/// own (freedesktop.org's System Tray Protocol). Trays come and go at any time. Main thread only.
class SystemTray {
  public:
    /// `onChange` is called from the event loop when a tray has come, has gone, or has changed how
    /// it looks.
    SystemTray(Connection& connection, std::function<void()> onChange);

    /// The window that stands for the tray, another one for each; none while there is no tray.
    [[nodiscard]] xcb_window_t window() const { return window_; }

    /// One round trip.
    [[nodiscard]] TrayStyle style() const;

    /// Asks the tray to take a window. It answers by making the window a child of its own, some
    /// time later or never.
    void requestDock(xcb_window_t window) const;

  private:
    void lookForOne();
    void handle(const xcb_generic_event_t& event);

    Connection& connection_;
    xcb_atom_t selection_;
    std::function<void()> onChange_;
    Connection::Subscription events_;
    xcb_window_t window_ = XCB_WINDOW_NONE;
};

} // namespace platform::linux_host
