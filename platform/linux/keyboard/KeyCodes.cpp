#include "platform/linux/keyboard/KeyCodes.h"

#include <algorithm>
#include <array>

namespace platform::linux_host {

namespace {

// By virtual key code. A position is one and the same key whatever is printed on it: where the two
// keyboards differ, as with the keys beside the left Shift and left of the 1 of an ISO keyboard,
// the position decides. A keyboard made for PCs gives F13 to F15 on a Mac for Print, Scroll Lock
// and Pause, so those stand for them here too.
constexpr std::array keys{
    LinuxKey{0x00, 30, "AC01"},                              // A
    LinuxKey{0x01, 31, "AC02"},                              // S
    LinuxKey{0x02, 32, "AC03"},                              // D
    LinuxKey{0x03, 33, "AC04"},                              // F
    LinuxKey{0x04, 35, "AC06"},                              // H
    LinuxKey{0x05, 34, "AC05"},                              // G
    LinuxKey{0x06, 44, "AB01"},                              // Z
    LinuxKey{0x07, 45, "AB02"},                              // X
    LinuxKey{0x08, 46, "AB03"},                              // C
    LinuxKey{0x09, 47, "AB04"},                              // V
    LinuxKey{0x0A, 86, "LSGT"},                              // ISO Section
    LinuxKey{0x0B, 48, "AB05"},                              // B
    LinuxKey{0x0C, 16, "AD01"},                              // Q
    LinuxKey{0x0D, 17, "AD02"},                              // W
    LinuxKey{0x0E, 18, "AD03"},                              // E
    LinuxKey{0x0F, 19, "AD04"},                              // R
    LinuxKey{0x10, 21, "AD06"},                              // Y
    LinuxKey{0x11, 20, "AD05"},                              // T
    LinuxKey{0x12, 2, "AE01"},                               // 1
    LinuxKey{0x13, 3, "AE02"},                               // 2
    LinuxKey{0x14, 4, "AE03"},                               // 3
    LinuxKey{0x15, 5, "AE04"},                               // 4
    LinuxKey{0x16, 7, "AE06"},                               // 6
    LinuxKey{0x17, 6, "AE05"},                               // 5
    LinuxKey{0x18, 13, "AE12"},                              // Equal
    LinuxKey{0x19, 10, "AE09"},                              // 9
    LinuxKey{0x1A, 8, "AE07"},                               // 7
    LinuxKey{0x1B, 12, "AE11"},                              // Minus
    LinuxKey{0x1C, 9, "AE08"},                               // 8
    LinuxKey{0x1D, 11, "AE10"},                              // 0
    LinuxKey{0x1E, 27, "AD12"},                              // Right Bracket
    LinuxKey{0x1F, 24, "AD09"},                              // O
    LinuxKey{0x20, 22, "AD07"},                              // U
    LinuxKey{0x21, 26, "AD11"},                              // Left Bracket
    LinuxKey{0x22, 23, "AD08"},                              // I
    LinuxKey{0x23, 25, "AD10"},                              // P
    LinuxKey{0x24, 28, "RTRN"},                              // Return
    LinuxKey{0x25, 38, "AC09"},                              // L
    LinuxKey{0x26, 36, "AC07"},                              // J
    LinuxKey{0x27, 40, "AC11"},                              // Quote
    LinuxKey{0x28, 37, "AC08"},                              // K
    LinuxKey{0x29, 39, "AC10"},                              // Semicolon
    LinuxKey{0x2A, 43, "BKSL"},                              // Backslash
    LinuxKey{0x2B, 51, "AB08"},                              // Comma
    LinuxKey{0x2C, 53, "AB10"},                              // Slash
    LinuxKey{0x2D, 49, "AB06"},                              // N
    LinuxKey{0x2E, 50, "AB07"},                              // M
    LinuxKey{0x2F, 52, "AB09"},                              // Period
    LinuxKey{0x30, 15, "TAB"},                               // Tab
    LinuxKey{0x31, 57, "SPCE"},                              // Space
    LinuxKey{0x32, 41, "TLDE"},                              // Grave
    LinuxKey{0x33, 14, "BKSP"},                              // Delete, the Backspace of PCs
    LinuxKey{0x35, 1, "ESC"},                                // Escape
    LinuxKey{0x36, 126, "RWIN"},                             // Right Command
    LinuxKey{0x37, 125, "LWIN"},                             // Command
    LinuxKey{0x38, 42, "LFSH"},                              // Shift
    LinuxKey{0x39, 58, "CAPS"},                              // Caps Lock
    LinuxKey{0x3A, 56, "LALT"},                              // Option
    LinuxKey{0x3B, 29, "LCTL"},                              // Control
    LinuxKey{0x3C, 54, "RTSH"},                              // Right Shift
    LinuxKey{0x3D, 100, "RALT"},                             // Right Option
    LinuxKey{0x3E, 97, "RCTL"},                              // Right Control
    LinuxKey{0x40, 187, "FK17"},                             // F17
    LinuxKey{0x41, 83, "KPDL"},                              // Keypad Decimal
    LinuxKey{0x43, 55, "KPMU"},                              // Keypad Multiply
    LinuxKey{0x45, 78, "KPAD"},                              // Keypad Plus
    LinuxKey{0x47, 69, "NMLK"},                              // Keypad Clear
    LinuxKey{0x48, 115, "VOL+"},                             // Volume Up
    LinuxKey{0x49, 114, "VOL-"},                             // Volume Down
    LinuxKey{0x4A, 113, "MUTE"},                             // Mute
    LinuxKey{0x4B, 98, "KPDV"},                              // Keypad Divide
    LinuxKey{0x4C, 96, "KPEN"},                              // Keypad Enter
    LinuxKey{0x4E, 74, "KPSU"},                              // Keypad Minus
    LinuxKey{0x4F, 188, "FK18"},                             // F18
    LinuxKey{0x50, 189, "FK19"},                             // F19
    LinuxKey{0x51, 117, "KPEQ"},                             // Keypad Equals
    LinuxKey{0x52, 82, "KP0"},                               // Keypad 0
    LinuxKey{0x53, 79, "KP1"},                               // Keypad 1
    LinuxKey{0x54, 80, "KP2"},                               // Keypad 2
    LinuxKey{0x55, 81, "KP3"},                               // Keypad 3
    LinuxKey{0x56, 75, "KP4"},                               // Keypad 4
    LinuxKey{0x57, 76, "KP5"},                               // Keypad 5
    LinuxKey{0x58, 77, "KP6"},                               // Keypad 6
    LinuxKey{0x59, 71, "KP7"},                               // Keypad 7
    LinuxKey{0x5A, 190, "FK20"},                             // F20
    LinuxKey{0x5B, 72, "KP8"},                               // Keypad 8
    LinuxKey{0x5C, 73, "KP9"},                               // Keypad 9
    LinuxKey{0x5D, 124, "AE13"},                             // JIS Yen
    LinuxKey{0x5E, 89, "AB11"},                              // JIS Underscore
    LinuxKey{0x5F, 121, "KPPT"},                             // JIS keypad comma
    LinuxKey{0x5F, 95, "JPCM"},  LinuxKey{0x60, 63, "FK05"}, // F5
    LinuxKey{0x61, 64, "FK06"},                              // F6
    LinuxKey{0x62, 65, "FK07"},                              // F7
    LinuxKey{0x63, 61, "FK03"},                              // F3
    LinuxKey{0x64, 66, "FK08"},                              // F8
    LinuxKey{0x65, 67, "FK09"},                              // F9
    LinuxKey{0x66, 123, "HJCV"},                             // JIS Eisu
    LinuxKey{0x66, 94, "MUHE"},  LinuxKey{0x67, 87, "FK11"}, // F11
    LinuxKey{0x68, 122, "HNGL"},                             // JIS Kana
    LinuxKey{0x68, 92, "HENK"},  LinuxKey{0x68, 93, "HKTG"},  LinuxKey{0x69, 183, "FK13"}, // F13
    LinuxKey{0x69, 99, "PRSC"},  LinuxKey{0x6A, 186, "FK16"},                              // F16
    LinuxKey{0x6B, 184, "FK14"},                                                           // F14
    LinuxKey{0x6B, 70, "SCLK"},  LinuxKey{0x6D, 68, "FK10"},                               // F10
    LinuxKey{0x6E, 127, "COMP"},                              // Contextual Menu
    LinuxKey{0x6F, 88, "FK12"},                               // F12
    LinuxKey{0x71, 185, "FK15"},                              // F15
    LinuxKey{0x71, 119, "PAUS"}, LinuxKey{0x72, 110, "INS"},  // Help, the Insert of PCs
    LinuxKey{0x72, 138, "HELP"}, LinuxKey{0x73, 102, "HOME"}, // Home
    LinuxKey{0x74, 104, "PGUP"},                              // Page Up
    LinuxKey{0x75, 111, "DELE"},                              // Forward Delete
    LinuxKey{0x76, 62, "FK04"},                               // F4
    LinuxKey{0x77, 107, "END"},                               // End
    LinuxKey{0x78, 60, "FK02"},                               // F2
    LinuxKey{0x79, 109, "PGDN"},                              // Page Down
    LinuxKey{0x7A, 59, "FK01"},                               // F1
    LinuxKey{0x7B, 105, "LEFT"},                              // Left Arrow
    LinuxKey{0x7C, 106, "RGHT"},                              // Right Arrow
    LinuxKey{0x7D, 108, "DOWN"},                              // Down Arrow
    LinuxKey{0x7E, 103, "UP"},                                // Up Arrow
};

constexpr bool comesBefore(const LinuxKey& a, const LinuxKey& b) {
    return a.virtualKey < b.virtualKey;
}
static_assert(std::is_sorted(keys.begin(), keys.end(), comesBefore));

} // namespace

std::span<const LinuxKey> keysOf(std::uint32_t virtualKey) {
    const LinuxKey sought{.virtualKey = virtualKey, .evdev = 0, .xkbName = {}};
    const auto [first, last] = std::equal_range(keys.begin(), keys.end(), sought, comesBefore);
    return {first, last};
}

std::optional<std::uint32_t> virtualKeyOf(std::uint32_t evdev) {
    const auto* const found = std::find_if(
        keys.begin(), keys.end(), [evdev](const LinuxKey& key) { return key.evdev == evdev; });
    return found != keys.end() ? std::optional(found->virtualKey) : std::nullopt;
}

} // namespace platform::linux_host
