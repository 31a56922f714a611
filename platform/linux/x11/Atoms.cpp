#include "platform/linux/x11/Atoms.h"

#include "platform/linux/x11/Reply.h"

#include <string_view>

namespace platform::linux_host {

namespace {

constexpr auto atomCount = static_cast<std::size_t>(Atom::count);

// In the order of the enumeration.
constexpr std::array<std::string_view, atomCount> names{
    "MANAGER",
    "_MOTIF_WM_HINTS",
    "_NET_ACTIVE_WINDOW",
    "_NET_CLIENT_LIST",
    "_NET_CLIENT_LIST_STACKING",
    "_NET_SUPPORTED",
    "_NET_SUPPORTING_WM_CHECK",
    "_NET_SYSTEM_TRAY_COLORS",
    "_NET_SYSTEM_TRAY_OPCODE",
    "_NET_SYSTEM_TRAY_VISUAL",
    "_NET_WM_ACTION_MINIMIZE",
    "_NET_WM_ALLOWED_ACTIONS",
    "_NET_WM_PID",
    "_NET_WM_STATE",
    "_NET_WM_STATE_SKIP_PAGER",
    "_NET_WM_STATE_SKIP_TASKBAR",
    "_NET_WM_WINDOW_TYPE",
    "_NET_WM_WINDOW_TYPE_COMBO",
    "_NET_WM_WINDOW_TYPE_DESKTOP",
    "_NET_WM_WINDOW_TYPE_DIALOG",
    "_NET_WM_WINDOW_TYPE_DND",
    "_NET_WM_WINDOW_TYPE_DOCK",
    "_NET_WM_WINDOW_TYPE_DROPDOWN_MENU",
    "_NET_WM_WINDOW_TYPE_MENU",
    "_NET_WM_WINDOW_TYPE_NORMAL",
    "_NET_WM_WINDOW_TYPE_NOTIFICATION",
    "_NET_WM_WINDOW_TYPE_POPUP_MENU",
    "_NET_WM_WINDOW_TYPE_SPLASH",
    "_NET_WM_WINDOW_TYPE_TOOLBAR",
    "_NET_WM_WINDOW_TYPE_TOOLTIP",
    "_NET_WM_WINDOW_TYPE_UTILITY",
    "WM_CHANGE_STATE",
};
static_assert(!names.back().empty(), "every atom has a name");

constexpr std::uint8_t createMissing = 0; // the request's "only if exists"

} // namespace

Atoms::Atoms(xcb_connection_t* connection) {
    std::array<xcb_intern_atom_cookie_t, atomCount> cookies{};
    for (std::size_t i = 0; i < atomCount; ++i) {
        cookies[i] = xcb_intern_atom(connection, createMissing,
                                     static_cast<std::uint16_t>(names[i].size()), names[i].data());
    }
    for (std::size_t i = 0; i < atomCount; ++i) {
        const Reply<xcb_intern_atom_reply_t> reply(
            xcb_intern_atom_reply(connection, cookies[i], nullptr));
        values_[i] = reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    }
}

} // namespace platform::linux_host
