#include "tests/desktop/support/FakeTray.h"

#include <array>

namespace desktop {
namespace {

constexpr auto selection = "_NET_SYSTEM_TRAY_S0";
constexpr std::uint16_t height = 24;
constexpr std::uint16_t grantedWidth = 100;

// No window manager sees it.
xcb_window_t createPanel(const XDisplay& display, const Geometry& place, std::uint32_t ground) {
    const xcb_window_t window = xcb_generate_id(display.connection());
    const std::array<std::uint32_t, 2> values{ground, 1};
    xcb_create_window(display.connection(), XCB_COPY_FROM_PARENT, window, display.root(), place.x,
                      place.y, place.width, place.height, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                      XCB_COPY_FROM_PARENT, XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT,
                      values.data());
    xcb_map_window(display.connection(), window);
    return window;
}

} // namespace

FakeTray::FakeTray(const std::string& display, std::uint32_t ground, std::uint16_t width)
    : display_(display), place_{.x = 0, .y = 0, .width = width, .height = height},
      window_(createPanel(display_, place_, ground)) {
    xcb_set_selection_owner(display_.connection(), window_, display_.atom(selection),
                            XCB_CURRENT_TIME);
    display_.sync();
}

void FakeTray::nameForeground(std::uint32_t color) {
    const auto component = [color](unsigned shift) { return ((color >> shift) & 0xFFU) * 0x101U; };
    std::array<std::uint32_t, 12> colors{};
    for (std::size_t i = 0; i < colors.size(); i += 3) {
        colors[i] = component(16);
        colors[i + 1] = component(8);
        colors[i + 2] = component(0);
    }
    display_.setProperty(window_, "_NET_SYSTEM_TRAY_COLORS", XCB_ATOM_CARDINAL, colors);
    display_.sync();
}

void FakeTray::waitForRequest() {
    const Deadline deadline;
    while (guest_ == XCB_NONE) {
        const auto event = display_.nextEvent("a window for the tray", deadline);
        if (XDisplay::kindOf(*event) == XCB_CLIENT_MESSAGE) {
            guest_ =
                reinterpret_cast<const xcb_client_message_event_t*>(event.get())->data.data32[2];
        }
    }
}

void FakeTray::take() {
    const std::array<std::uint32_t, 2> size{grantedWidth, height};
    xcb_reparent_window(display_.connection(), guest_, window_, 0, 0);
    xcb_configure_window(display_.connection(), guest_,
                         XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT, size.data());
    xcb_map_window(display_.connection(), guest_);
    display_.sync();
}

void FakeTray::putOut() {
    xcb_unmap_window(display_.connection(), guest_);
    xcb_reparent_window(display_.connection(), guest_, display_.root(), 0, 0);
    display_.sync();
    guest_ = XCB_NONE;
}

} // namespace desktop
