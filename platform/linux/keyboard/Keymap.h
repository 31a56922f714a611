#pragma once

#include "platform/linux/keyboard/KeyCodes.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>
#include <xcb/xproto.h>

namespace platform::linux_host {

class Connection;

/// Sets up the keyboard extension on the connection; the number of its first event, or null where
/// the server has no such extension. Calling it again costs a round trip and changes nothing.
[[nodiscard]] std::optional<std::uint8_t> setUpKeyboardExtension(Connection& connection);

/// The modifier bits of the X server that stand for what the Mac's keyboard calls its modifiers,
/// and the bits of the locks. 0: no key of the keyboard has that meaning.
struct ModifierBits {
    std::uint16_t command = 0; ///< Super
    std::uint16_t option = 0;  ///< Alt
    std::uint16_t numLock = 0;
    std::uint16_t scrollLock = 0;
};

/// The keyboard as it is mapped at one moment.
class Keymap {
  public:
    /// Reads it from the server, in one round trip.
    explicit Keymap(Connection& connection);

    /// The X keycode of a key, found by its name in the map. A key that the map does not name has
    /// the keycode of the kernel's code, if the server's range reaches that far.
    [[nodiscard]] std::optional<xcb_keycode_t> keycodeOf(const LinuxKey& key) const;

    /// The server's modifier mask for a mask of Carbon modifier bits, of which only the four of the
    /// Mac's keyboard count. Null when the keyboard lacks one of them.
    [[nodiscard]] std::optional<std::uint16_t> modifiersOf(std::uint32_t carbonModifiers) const;

    /// Every state that Caps Lock, Num Lock and Scroll Lock can be in, as modifier masks.
    [[nodiscard]] std::vector<std::uint16_t> lockStates() const;

  private:
    using Names = std::vector<std::pair<std::string, xcb_keycode_t>>;

    Names names_; ///< empty where the server does not tell them
    ModifierBits modifiers_;
    std::uint8_t minimumKeycode_;
    std::uint8_t maximumKeycode_;
};

} // namespace platform::linux_host
