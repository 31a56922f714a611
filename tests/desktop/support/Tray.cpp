#include "tests/desktop/support/Tray.h"

#include "tests/desktop/support/XDisplay.h"

#include <fstream>

namespace desktop {
namespace {

constexpr auto traySelection = "_NET_SYSTEM_TRAY_S0";

xcb_window_t trayOf(const XDisplay& display) {
    const auto cookie = xcb_get_selection_owner(display.connection(), display.atom(traySelection));
    const Reply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(display.connection(), cookie, nullptr));
    return reply ? reply->owner : xcb_window_t{XCB_NONE};
}

std::vector<std::string> trayerArguments(const TrayLook& look) {
    return {"trayer",
            "--edge",
            look.isAtBottom ? "bottom" : "top",
            "--align",
            "right",
            "--widthtype",
            "request",
            "--heighttype",
            "pixel",
            "--height",
            std::to_string(look.height),
            "--transparent",
            "true",
            "--alpha",
            "0",
            "--tint",
            look.isDark ? "0x2a2e33" : "0xe6e6e6"};
}

std::string tint2Configuration(const TrayLook& look) {
    const std::string color = look.isDark ? "#2a2e33 100" : "#e6e6e6 100";
    return "rounded = 0\nborder_width = 0\nbackground_color = " + color +
           "\nborder_color = " + color + "\npanel_items = FS\npanel_size = 100% " +
           std::to_string(look.height) +
           "\npanel_background_id = 1\npanel_position = " + (look.isAtBottom ? "bottom" : "top") +
           " center horizontal\nsystray_padding = 0 2 4\nstrut_policy = follow_size\n";
}

Command commandFor(const VirtualDesktop& desktop, TrayProgram program, const TrayLook& look) {
    if (program == TrayProgram::trayer) {
        return desktop.command(trayerArguments(look));
    }
    const auto file = desktop.configuration() / "tray.tint2rc";
    std::ofstream(file) << tint2Configuration(look);
    return desktop.command({"tint2", "-c", file});
}

} // namespace

Tray::Tray(const VirtualDesktop& desktop, TrayProgram program, const TrayLook& look)
    : process_(commandFor(desktop, program, look)) {
    const XDisplay display(desktop.display());
    waitUntil([&] { return trayOf(display) != XCB_NONE; }, "a system tray");
}

} // namespace desktop
