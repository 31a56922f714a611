#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

/// Keys by position: macOS virtual key codes and the keys of a Linux keyboard that sit, or mean,
/// the same.
namespace platform::linux_host {

/// One key of a Linux keyboard.
struct LinuxKey {
    std::uint32_t virtualKey; ///< the macOS code that it stands for
    std::uint16_t evdev;      ///< the kernel's code; the X keycode is 8 more unless renamed
    std::string_view xkbName; ///< the position's name in a keyboard map
};

/// The keys that a virtual key code stands for, the main one first. Most have one; some that only
/// one of the two kinds of keyboard has are several. Empty for a code that no key has.
[[nodiscard]] std::span<const LinuxKey> keysOf(std::uint32_t virtualKey);

/// The virtual key code of a key, by its kernel code; empty for a key without one.
[[nodiscard]] std::optional<std::uint32_t> virtualKeyOf(std::uint32_t evdev);

} // namespace platform::linux_host
