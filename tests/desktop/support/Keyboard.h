#pragma once

#include "tests/desktop/support/XDisplay.h"

#include <chrono>
#include <string>
#include <vector>

namespace desktop {

class VirtualDesktop;

/// Keys by their position, as X numbers them (the kernel's number plus 8). The letters are those of
/// the US layout; another layout changes what a key types, not which key it is.
namespace key {
inline constexpr xcb_keycode_t escape = 9;
inline constexpr xcb_keycode_t digit1 = 10;
inline constexpr xcb_keycode_t digit4 = 13;
inline constexpr xcb_keycode_t digit5 = 14;
inline constexpr xcb_keycode_t digit0 = 19;
inline constexpr xcb_keycode_t tab = 23;
inline constexpr xcb_keycode_t q = 24;
inline constexpr xcb_keycode_t o = 32;
inline constexpr xcb_keycode_t returnKey = 36;
inline constexpr xcb_keycode_t leftControl = 37;
inline constexpr xcb_keycode_t a = 38;
inline constexpr xcb_keycode_t k = 45;
inline constexpr xcb_keycode_t leftShift = 50;
inline constexpr xcb_keycode_t n = 57;
inline constexpr xcb_keycode_t m = 58;
inline constexpr xcb_keycode_t comma = 59;
inline constexpr xcb_keycode_t leftAlt = 64;
inline constexpr xcb_keycode_t space = 65;
inline constexpr xcb_keycode_t capsLock = 66;
inline constexpr xcb_keycode_t numLock = 77;
inline constexpr xcb_keycode_t right = 114;
inline constexpr xcb_keycode_t down = 116;
inline constexpr xcb_keycode_t leftSuper = 133;
} // namespace key

/// Keys that are pressed together: the modifiers first, in this order, and the key last.
struct Chord {
    std::vector<xcb_keycode_t> modifiers;
    xcb_keycode_t key;
};

/// The keyboard of a desktop. Its keys are pressed through the server's test extension, so they
/// take the same way through the server, its grabs and its repeats as those of a real keyboard.
/// Every call returns when the server has taken the keys.
class Keyboard {
  public:
    explicit Keyboard(const std::string& display);

    /// Presses and releases all keys of a chord.
    void press(const Chord& chord);

    /// Presses all keys of a chord and releases them after a time, for which the last one repeats.
    void hold(const Chord& chord, std::chrono::milliseconds duration);

    /// Presses all keys of a chord, or releases them.
    void down(const Chord& chord);
    void up(const Chord& chord);

    /// Presses and releases a lock key and waits until the lock is on.
    void turnOn(xcb_keycode_t lockKey);

    void keyDown(xcb_keycode_t key);
    void keyUp(xcb_keycode_t key);

  private:
    void fake(std::uint8_t kind, xcb_keycode_t key) const;
    [[nodiscard]] std::uint16_t modifierState() const;

    XDisplay display_;
};

/// Has keys that are held begin to repeat after a tenth of a second, and then a hundred times a
/// second.
void repeatKeysFast(const VirtualDesktop& desktop);

} // namespace desktop
