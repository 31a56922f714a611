#include "platform/linux/keyboard/KeyGrabs.h"

#include "platform/linux/keyboard/Keymap.h"
#include "platform/linux/x11/Connection.h"
#include "platform/linux/x11/Reply.h"

namespace platform::linux_host {

namespace {

constexpr std::uint8_t eventsToGrabberOnly = 0; // the request's "owner events"

xcb_void_cookie_t requestGrab(Connection& connection, const KeyGrab& grab) {
    return xcb_grab_key_checked(connection.xcb(), eventsToGrabberOnly, connection.root(),
                                grab.modifiers, grab.keycode, XCB_GRAB_MODE_ASYNC,
                                XCB_GRAB_MODE_ASYNC);
}

} // namespace

std::vector<KeyGrab> grabsOf(std::uint32_t keyCode, std::uint32_t carbonModifiers,
                             const Keymap& keymap) {
    const auto modifiers = keymap.modifiersOf(carbonModifiers);
    if (!modifiers) {
        return {};
    }
    std::vector<KeyGrab> grabs;
    for (const LinuxKey& key : keysOf(keyCode)) {
        const auto keycode = keymap.keycodeOf(key);
        if (!keycode) {
            return {};
        }
        for (const std::uint16_t locks : keymap.lockStates()) {
            const auto mask = static_cast<std::uint16_t>(*modifiers | locks);
            grabs.push_back({.keycode = *keycode, .modifiers = mask});
        }
    }
    return grabs;
}

bool takeGrabs(Connection& connection, const std::vector<KeyGrab>& grabs) {
    std::vector<xcb_void_cookie_t> cookies;
    cookies.reserve(grabs.size());
    for (const KeyGrab& grab : grabs) {
        cookies.push_back(requestGrab(connection, grab));
    }
    std::vector<KeyGrab> taken;
    for (std::size_t i = 0; i < grabs.size(); ++i) {
        const Reply<xcb_generic_error_t> error(xcb_request_check(connection.xcb(), cookies[i]));
        if (!error) {
            taken.push_back(grabs[i]);
        }
    }
    const bool allTaken = taken.size() == grabs.size() && !connection.isBroken();
    if (!allTaken) {
        releaseGrabs(connection, taken);
    }
    return allTaken;
}

void releaseGrabs(Connection& connection, const std::vector<KeyGrab>& grabs) {
    for (const KeyGrab& grab : grabs) {
        xcb_ungrab_key(connection.xcb(), grab.keycode, connection.root(), grab.modifiers);
    }
    connection.synchronize();
}

} // namespace platform::linux_host
