#include "tests/desktop/support/KeyGrabs.h"

#include <algorithm>
#include <stdexcept>

namespace desktop {
namespace {

constexpr std::uint16_t everyModifier = 0xFF;

// While this lives, the server serves no other client: looking whether a combination is free means
// taking it for a moment, and nobody must be refused because of that.
class ServerGrab {
  public:
    explicit ServerGrab(const XDisplay& display) : display_(display) {
        xcb_grab_server(display_.connection());
    }
    ~ServerGrab() {
        xcb_ungrab_server(display_.connection());
        display_.flush();
    }
    ServerGrab(const ServerGrab&) = delete;
    ServerGrab& operator=(const ServerGrab&) = delete;

  private:
    const XDisplay& display_;
};

} // namespace

KeyGrabs::KeyGrabs(const std::string& display) : display_(display) {}

bool KeyGrabs::take(const Chord& chord) {
    const ServerGrab alone(display_);
    const bool hasAll = std::ranges::all_of(
        lockVariants(), [&](std::uint16_t locks) { return grab(chord, locks); });
    if (!hasAll) {
        giveBack(chord);
    }
    return hasAll;
}

void KeyGrabs::giveBack(const Chord& chord) {
    for (const std::uint16_t locks : lockVariants()) {
        ungrab(chord, locks);
    }
    display_.sync();
}

void KeyGrabs::takeKeyboard() {
    const auto cookie =
        xcb_grab_keyboard(display_.connection(), 0, display_.root(), XCB_CURRENT_TIME,
                          XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    const Reply<xcb_grab_keyboard_reply_t> reply(
        xcb_grab_keyboard_reply(display_.connection(), cookie, nullptr));
    if (!reply || reply->status != XCB_GRAB_STATUS_SUCCESS) {
        throw std::runtime_error("the keyboard could not be grabbed");
    }
}

void KeyGrabs::giveBackKeyboard() {
    xcb_ungrab_keyboard(display_.connection(), XCB_CURRENT_TIME);
    display_.sync();
}

bool KeyGrabs::isTaken(const Chord& chord) {
    return countFreeVariants(chord) == 0;
}

bool KeyGrabs::isFree(const Chord& chord) {
    return countFreeVariants(chord) == static_cast<int>(lockVariants().size());
}

int KeyGrabs::countFreeVariants(const Chord& chord) {
    const ServerGrab alone(display_);
    int free = 0;
    for (const std::uint16_t locks : lockVariants()) {
        if (grab(chord, locks)) {
            ungrab(chord, locks);
            ++free;
        }
    }
    return free;
}

int KeyGrabs::presses() {
    display_.sync();
    int presses = 0;
    while (const auto event = display_.pendingEvent()) {
        presses += XDisplay::kindOf(*event) == XCB_KEY_PRESS ? 1 : 0;
    }
    return presses;
}

bool KeyGrabs::grab(const Chord& chord, std::uint16_t locks) {
    const auto modifiers = static_cast<std::uint16_t>(maskOf(chord) | locks);
    const auto cookie = xcb_grab_key_checked(display_.connection(), 0, display_.root(), modifiers,
                                             chord.key, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    const Reply<xcb_generic_error_t> error(xcb_request_check(display_.connection(), cookie));
    return error == nullptr;
}

void KeyGrabs::ungrab(const Chord& chord, std::uint16_t locks) {
    const auto modifiers = static_cast<std::uint16_t>(maskOf(chord) | locks);
    xcb_ungrab_key(display_.connection(), chord.key, display_.root(), modifiers);
}

std::uint16_t KeyGrabs::maskOf(const Chord& chord) const {
    std::uint16_t mask = 0;
    for (const xcb_keycode_t modifier : chord.modifiers) {
        mask |= modifierBitOf(modifier);
    }
    return mask;
}

// The modifier map lists, for each of the eight modifiers, an equal number of keys.
std::uint16_t KeyGrabs::modifierBitOf(xcb_keycode_t key) const {
    const auto cookie = xcb_get_modifier_mapping(display_.connection());
    const Reply<xcb_get_modifier_mapping_reply_t> map(
        xcb_get_modifier_mapping_reply(display_.connection(), cookie, nullptr));
    const std::span keys(
        xcb_get_modifier_mapping_keycodes(map.get()),
        static_cast<std::size_t>(xcb_get_modifier_mapping_keycodes_length(map.get())));
    const auto index = (std::ranges::find(keys, key) - keys.begin()) / map->keycodes_per_modifier;
    return static_cast<std::uint16_t>((1U << static_cast<unsigned>(index)) & everyModifier);
}

std::vector<std::uint16_t> KeyGrabs::lockVariants() const {
    const auto caps = modifierBitOf(key::capsLock);
    const auto num = modifierBitOf(key::numLock);
    return {0, caps, num, static_cast<std::uint16_t>(caps | num)};
}

} // namespace desktop
