#include "tests/desktop/support/Keyboard.h"

#include "tests/desktop/support/Process.h"
#include "tests/desktop/support/VirtualDesktop.h"

#include <xcb/xtest.h>

#include <algorithm>
#include <thread>

namespace desktop {

Keyboard::Keyboard(const std::string& display) : display_(display) {}

void Keyboard::press(const Chord& chord) {
    down(chord);
    up(chord);
}

void Keyboard::hold(const Chord& chord, std::chrono::milliseconds duration) {
    down(chord);
    std::this_thread::sleep_for(duration);
    up(chord);
}

void Keyboard::down(const Chord& chord) {
    for (const xcb_keycode_t modifier : chord.modifiers) {
        keyDown(modifier);
    }
    keyDown(chord.key);
}

void Keyboard::up(const Chord& chord) {
    keyUp(chord.key);
    std::for_each(chord.modifiers.rbegin(), chord.modifiers.rend(),
                  [this](xcb_keycode_t modifier) { keyUp(modifier); });
}

void Keyboard::turnOn(xcb_keycode_t lockKey) {
    const std::uint16_t before = modifierState();
    keyDown(lockKey);
    keyUp(lockKey);
    waitUntil([&] { return modifierState() != before; }, "a lock of the keyboard");
}

void Keyboard::keyDown(xcb_keycode_t key) {
    fake(XCB_KEY_PRESS, key);
}

void Keyboard::keyUp(xcb_keycode_t key) {
    fake(XCB_KEY_RELEASE, key);
}

void Keyboard::fake(std::uint8_t kind, xcb_keycode_t key) const {
    xcb_test_fake_input(display_.connection(), kind, key, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
    display_.sync();
}

std::uint16_t Keyboard::modifierState() const {
    const auto cookie = xcb_query_pointer(display_.connection(), display_.root());
    const Reply<xcb_query_pointer_reply_t> reply(
        xcb_query_pointer_reply(display_.connection(), cookie, nullptr));
    return reply ? reply->mask : std::uint16_t{0};
}

void repeatKeysFast(const VirtualDesktop& desktop) {
    run(desktop.command({"xset", "r", "rate", "100", "100"}));
}

} // namespace desktop
