#pragma once

#include <cstdint>
#include <vector>
#include <xcb/xproto.h>

/// Passive key grabs on the root window, by which the X server gives a key to this program whatever
/// window has the focus.
namespace platform::linux_host {

class Connection;
class Keymap;

/// One key with an exact state of all modifiers.
struct KeyGrab {
    xcb_keycode_t keycode = 0;
    std::uint16_t modifiers = 0;

    bool operator==(const KeyGrab&) const = default;
};

/// The grabs that make up a hot key: each of the keys that the code stands for, with the modifiers
/// alone and in every state of the locks, since the server compares modifiers exactly. Empty when
/// the keyboard has no such key or modifier.
[[nodiscard]] std::vector<KeyGrab> grabsOf(std::uint32_t keyCode, std::uint32_t carbonModifiers,
                                           const Keymap& keymap);

/// Takes all the grabs, in one round trip. If one is refused because another client holds it, gives
/// the others back and answers false. What this client holds already it can take again, so its own
/// grabs have to be kept apart by the caller.
[[nodiscard]] bool takeGrabs(Connection& connection, const std::vector<KeyGrab>& grabs);

/// Gives the grabs back; when it returns, other clients can have them. One round trip.
void releaseGrabs(Connection& connection, const std::vector<KeyGrab>& grabs);

} // namespace platform::linux_host
