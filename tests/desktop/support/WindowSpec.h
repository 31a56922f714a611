#pragma once

#include <xcb/xproto.h>

#include <cstdint>
#include <iosfwd>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace desktop {

/// What kind of window an application says it is opening (_NET_WM_WINDOW_TYPE).
enum class WindowType : std::uint8_t {
    unsaid,
    normal,
    dialog,
    utility,
    dock,
    desktop,
    splash,
    toolbar,
    menu,
    notification,
};

/// A state that an application asks for when it opens a window (_NET_WM_STATE); `none` asks for
/// nothing.
enum class WindowState : std::uint8_t { none, skipTaskbar, fullscreen, above, sticky, maximized };

/// In pixels, from the top left of the screen.
struct Geometry {
    std::int16_t x = 60;
    std::int16_t y = 60;
    std::uint16_t width = 200;
    std::uint16_t height = 120;
};

/// A window for a test to open.
struct WindowSpec {
    std::string title = "window"; ///< one word
    WindowType type = WindowType::normal;
    WindowState state = WindowState::none;
    xcb_window_t transientFor = XCB_NONE;
    std::optional<std::uint32_t> desktop{}; ///< the virtual desktop, from 0; empty for the current
    Geometry geometry{};
    bool startsMinimized = false;
    bool canBeMinimized = true; ///< false: the Motif hints withhold the minimize function
    bool isManaged = true;      ///< false: an override-redirect window, as menus and tooltips are
    bool tellsPid = true;       ///< false: no _NET_WM_PID
    std::uint32_t client = 0;   ///< which of its connections the application opens it on
};

/// The atoms' names; empty for what is not said at all.
[[nodiscard]] std::string_view atomName(WindowType type);
[[nodiscard]] std::string_view atomName(WindowState state);

/// The windows' ids, each with a space before it.
[[nodiscard]] std::string listed(std::span<const xcb_window_t> windows);

/// The form in which the order for a window travels to the process that opens the window.
std::ostream& operator<<(std::ostream& stream, const WindowSpec& spec);
std::istream& operator>>(std::istream& stream, WindowSpec& spec);

} // namespace desktop
