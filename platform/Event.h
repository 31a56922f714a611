#pragma once

#include "platform/Geometry.h"

#include <cstdint>

namespace platform {

/// Modifier keys held during an event: bits of `Event::modifierFlags`. The values are AppKit's.
inline constexpr std::uint32_t modifierFlagShift = 0x020000;
inline constexpr std::uint32_t modifierFlagControl = 0x040000;
inline constexpr std::uint32_t modifierFlagOption = 0x080000;
inline constexpr std::uint32_t modifierFlagCommand = 0x100000;

/// What the user did with the mouse or the keyboard.
struct Event {
    Point locationInWindow;          ///< points, origin at the window's bottom left
    std::uint32_t modifierFlags = 0; ///< may hold further bits: test bits, never compare whole
    std::uint16_t keyCode = 0;       ///< virtual key code; of key events alone
};

} // namespace platform
