#pragma once

#include "platform/linux/x11/Connection.h"
#include "platform/linux/x11/ScreenSpace.h"

#include <QImage>
#include <functional>

namespace platform::linux_host {

/// What a system tray does with one window of this program, as the X server tells it. Qt is told
/// only a part of it: when the tray moves a window together with its own, Qt hears nothing.
///
/// All places and sizes are pixels of the X server.
class TrayDock {
  public:
    /// What may be another one than before: `state`, the size of `frame`, or what `readGround`
    /// reads.
    enum class Change { state, size, ground };

    /// Watches `window`, which has to exist already. `onChange` is called from the event loop.
    TrayDock(Connection& connection, xcb_window_t window, std::function<void(Change)> onChange);

    /// Asked for, taken by a tray, or put out of it again.
    enum class State { waiting, docked, lost };
    [[nodiscard]] State state() const { return state_; }

    /// What the tray has granted and shows. Its `x` and `y` count from the top left of the X
    /// screen. Two round trips for each window around.
    [[nodiscard]] PixelRect frame() const;

    /// What the tray shows where the window is, for windows that cannot be seen through. Null when
    /// that cannot be read, as long as the tray does not show the window yet. Has whatever the
    /// window shows erased. Two round trips.
    [[nodiscard]] QImage readGround() const;

  private:
    void handle(const xcb_generic_event_t& event);
    void setState(State state);

    Connection& connection_;
    xcb_window_t window_;
    std::function<void(Change)> onChange_;
    State state_ = State::waiting;
    Connection::Subscription events_;
};

} // namespace platform::linux_host
