#include "tests/desktop/support/FakeWindowManager.h"

#include <array>

namespace desktop {
namespace {

xcb_window_t createWindow(const XDisplay& display) {
    const xcb_window_t window = xcb_generate_id(display.connection());
    xcb_create_window(display.connection(), XCB_COPY_FROM_PARENT, window, display.root(), 0, 0, 1,
                      1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    return window;
}

} // namespace

FakeWindowManager::FakeWindowManager(const std::string& display)
    : display_(display), checkWindow_(createWindow(display_)) {
    constexpr auto check = "_NET_SUPPORTING_WM_CHECK";
    const std::array supported{display_.atom("_NET_CLIENT_LIST")};
    display_.setProperty(checkWindow_, check, XCB_ATOM_WINDOW, {&checkWindow_, 1});
    display_.setProperty(display_.root(), check, XCB_ATOM_WINDOW, {&checkWindow_, 1});
    display_.setProperty(display_.root(), "_NET_SUPPORTED", XCB_ATOM_ATOM, supported);
    list({});
}

void FakeWindowManager::list(std::span<const xcb_window_t> windows) {
    for (const auto* const property : {"_NET_CLIENT_LIST", "_NET_CLIENT_LIST_STACKING"}) {
        display_.setProperty(display_.root(), property, XCB_ATOM_WINDOW, windows);
    }
    display_.sync();
}

} // namespace desktop
