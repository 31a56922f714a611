#include "tests/desktop/support/OwnWindows.h"

#include "tests/desktop/support/ProgramWindows.h"

#include <algorithm>
#include <array>

namespace desktop {
namespace {

constexpr auto activeWindowProperty = "_NET_ACTIVE_WINDOW";

const Chord settingsKey{.modifiers = {key::leftControl}, .key = key::comma};
// Separators are passed over: minimize, the row, two submenus, preferences, settings, about.
constexpr int stepsToAbout = 7;

Reply<xcb_get_geometry_reply_t> geometryOf(const XDisplay& display, xcb_window_t window) {
    return Reply<xcb_get_geometry_reply_t>(xcb_get_geometry_reply(
        display.connection(), xcb_get_geometry(display.connection(), window), nullptr));
}

} // namespace

OwnWindows::OwnWindows(const std::string& display)
    : display_(display), item_(display), menus_(display), pointer_(display), keyboard_(display) {}

// Clicks once more where a user would. On a very busy machine, one menu in some hundreds that
// opened right after windows were minimized was closed again at once; why is not known.
void OwnWindows::openMenu() {
    const ItemSight sight = item_.waitUntil([](const ItemSight&) { return true; }, "an item");
    pointer_.moveTo(sight.centerX(), sight.centerY());
    pointer_.click();
    try {
        menus_.waitUntilOpen(1, Deadline(std::chrono::seconds{10}));
    } catch (const TimedOut&) {
        pointer_.click();
        menus_.waitUntilOpen(1);
    }
}

xcb_window_t OwnWindows::openSettings() {
    openMenu();
    keyboard_.press(settingsKey);
    return waitForSettings();
}

xcb_window_t OwnWindows::openAbout() {
    openMenu();
    for (int i = 0; i < stepsToAbout; ++i) {
        keyboard_.press({.modifiers = {}, .key = key::down});
    }
    keyboard_.press({.modifiers = {}, .key = key::returnKey});
    return waitForActive("About Quellbar");
}

void OwnWindows::click(xcb_window_t window, ContentPoint place) {
    const ScreenPoint origin = this->place(window);
    const auto geometry = geometryOf(display_, window);
    pointer_.moveTo(origin.x + place.x, origin.y + (geometry ? geometry->height : 0) - place.y);
    pointer_.click();
    waitUntilClickIsThrough();
}

void OwnWindows::close(xcb_window_t window) {
    display_.messageToRoot(window, "_NET_CLOSE_WINDOW", std::array<std::uint32_t, 2>{0, 2});
    display_.flush();
    waitUntil([&] { return !isViewable(window); }, "the window to close");
}

ScreenPoint OwnWindows::place(xcb_window_t window) const {
    const Reply<xcb_translate_coordinates_reply_t> reply(xcb_translate_coordinates_reply(
        display_.connection(),
        xcb_translate_coordinates(display_.connection(), window, display_.root(), 0, 0), nullptr));
    return reply ? ScreenPoint{.x = reply->dst_x, .y = reply->dst_y} : ScreenPoint{};
}

bool OwnWindows::isActive(xcb_window_t window) const {
    const auto active = display_.property(display_.root(), activeWindowProperty);
    return !active.empty() && active.front() == window;
}

bool OwnWindows::isOnTop(xcb_window_t window) const {
    auto stack = display_.property(display_.root(), "_NET_CLIENT_LIST_STACKING");
    std::erase_if(stack, [this](xcb_window_t other) {
        return saysItIs(display_, other, "_NET_WM_WINDOW_TYPE_DOCK");
    });
    return !stack.empty() && stack.back() == window;
}

// The manager holds the pointer until it has let a click through, and then the window does until it
// is over. So long nobody else can have it.
void OwnWindows::waitUntilClickIsThrough() const {
    constexpr std::uint8_t eventsToTheirOwners = 1;
    const auto isFree = [this] {
        const Reply<xcb_grab_pointer_reply_t> reply(xcb_grab_pointer_reply(
            display_.connection(),
            xcb_grab_pointer(display_.connection(), eventsToTheirOwners, display_.root(), 0,
                             XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC, XCB_NONE, XCB_NONE,
                             XCB_CURRENT_TIME),
            nullptr));
        return reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
    };
    waitUntil(isFree, "a click to be through");
    xcb_ungrab_pointer(display_.connection(), XCB_CURRENT_TIME);
    display_.sync();
}

xcb_window_t OwnWindows::waitForActive(const std::string& title) {
    xcb_window_t found = XCB_NONE;
    waitUntil(
        [&] {
            const auto active = display_.property(display_.root(), activeWindowProperty);
            found = active.empty() ? xcb_window_t{XCB_NONE} : active.front();
            return found != XCB_NONE && display_.text(found, "_NET_WM_NAME") == title &&
                   display_.focus() == found;
        },
        title + " to be active and have the keyboard");
    return found;
}

bool OwnWindows::isViewable(xcb_window_t window) const {
    const Reply<xcb_get_window_attributes_reply_t> reply(xcb_get_window_attributes_reply(
        display_.connection(), xcb_get_window_attributes(display_.connection(), window), nullptr));
    return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
}

} // namespace desktop
