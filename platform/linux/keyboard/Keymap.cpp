#include "platform/linux/keyboard/Keymap.h"

#include "platform/linux/keyboard/KeyNames.h"
#include "platform/linux/x11/Connection.h"
#include "platform/linux/x11/Reply.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <span>
#include <string>
#include <xkbcommon/xkbcommon-keysyms.h>
#include <xkbcommon/xkbcommon-x11.h>

namespace platform::linux_host {

namespace {

// Carbon's modifier bits.
constexpr std::uint32_t cmdKey = 0x0100;
constexpr std::uint32_t shiftKey = 0x0200;
constexpr std::uint32_t optionKey = 0x0800;
constexpr std::uint32_t controlKey = 0x1000;

constexpr std::uint16_t evdevOffset = 8;
constexpr std::size_t modifierCount = 8;

// A name fills four characters, or is filled up with zeros.
std::string nameFrom(const char* characters) {
    return {characters, ::strnlen(characters, quellbar_key_name_length)};
}

// The core protocol's view of the keyboard: which keys are modifiers, and what each key means.
class CoreMapping {
  public:
    explicit CoreMapping(Connection& connection)
        : connection_(connection.xcb()), minimum_(connection.setup().min_keycode),
          modifiersRequest_(xcb_get_modifier_mapping(connection_)),
          symbolsRequest_(xcb_get_keyboard_mapping(connection_, minimum_, countOf(connection))) {}

    void read() {
        modifiers_.reset(xcb_get_modifier_mapping_reply(connection_, modifiersRequest_, nullptr));
        symbols_.reset(xcb_get_keyboard_mapping_reply(connection_, symbolsRequest_, nullptr));
    }

    // The bit of the first modifier of which a key means one of `symbols`, tried in their order.
    [[nodiscard]] std::uint16_t bitOf(std::initializer_list<xcb_keysym_t> symbols) const {
        for (const xcb_keysym_t symbol : symbols) {
            for (std::size_t modifier = 0; modifier < modifierCount; ++modifier) {
                if (hasKeyWith(modifier, symbol)) {
                    return static_cast<std::uint16_t>(1U << modifier);
                }
            }
        }
        return 0;
    }

  private:
    static std::uint8_t countOf(Connection& connection) {
        return static_cast<std::uint8_t>(connection.setup().max_keycode -
                                         connection.setup().min_keycode + 1);
    }

    [[nodiscard]] bool hasKeyWith(std::size_t modifier, xcb_keysym_t symbol) const {
        const auto keys = keycodesOf(modifier);
        return std::any_of(keys.begin(), keys.end(), [this, symbol](xcb_keycode_t keycode) {
            const auto symbols = symbolsOf(keycode);
            return std::find(symbols.begin(), symbols.end(), symbol) != symbols.end();
        });
    }

    [[nodiscard]] std::span<const xcb_keycode_t> keycodesOf(std::size_t modifier) const {
        if (!modifiers_) {
            return {};
        }
        const std::size_t each = modifiers_->keycodes_per_modifier;
        return {xcb_get_modifier_mapping_keycodes(modifiers_.get()) + modifier * each, each};
    }

    [[nodiscard]] std::span<const xcb_keysym_t> symbolsOf(xcb_keycode_t keycode) const {
        if (!symbols_ || keycode < minimum_) { // unused places hold keycode 0
            return {};
        }
        const std::size_t each = symbols_->keysyms_per_keycode;
        return {xcb_get_keyboard_mapping_keysyms(symbols_.get()) + (keycode - minimum_) * each,
                each};
    }

    xcb_connection_t* connection_;
    xcb_keycode_t minimum_;
    xcb_get_modifier_mapping_cookie_t modifiersRequest_;
    xcb_get_keyboard_mapping_cookie_t symbolsRequest_;
    Reply<xcb_get_modifier_mapping_reply_t> modifiers_;
    Reply<xcb_get_keyboard_mapping_reply_t> symbols_;
};

ModifierBits meaningsOf(const CoreMapping& mapping) {
    return {
        .command = mapping.bitOf({XKB_KEY_Super_L, XKB_KEY_Super_R}),
        .option = mapping.bitOf({XKB_KEY_Alt_L, XKB_KEY_Alt_R}),
        .numLock = mapping.bitOf({XKB_KEY_Num_Lock}),
        .scrollLock = mapping.bitOf({XKB_KEY_Scroll_Lock}),
    };
}

} // namespace

std::optional<std::uint8_t> setUpKeyboardExtension(Connection& connection) {
    std::uint8_t firstEvent = 0;
    const int isThere = xkb_x11_setup_xkb_extension(
        connection.xcb(), XKB_X11_MIN_MAJOR_XKB_VERSION, XKB_X11_MIN_MINOR_XKB_VERSION,
        XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr, &firstEvent, nullptr);
    return isThere != 0 ? std::optional(firstEvent) : std::nullopt;
}

// All is asked for before the first answer is waited for.
Keymap::Keymap(Connection& connection)
    : minimumKeycode_(connection.setup().min_keycode),
      maximumKeycode_(connection.setup().max_keycode) {
    const unsigned namesRequest = quellbar_request_key_names(connection.xcb());
    CoreMapping mapping(connection);
    const auto addName = [](void* names, const char* name, std::uint8_t keycode) {
        static_cast<Names*>(names)->emplace_back(nameFrom(name), keycode);
    };
    quellbar_visit_key_names(connection.xcb(), namesRequest, addName, &names_);
    mapping.read();
    modifiers_ = meaningsOf(mapping);
}

std::optional<xcb_keycode_t> Keymap::keycodeOf(const LinuxKey& key) const {
    const auto named = std::ranges::find(names_, key.xkbName, &Names::value_type::first);
    const int keycode = named != names_.end() ? named->second : key.evdev + evdevOffset;
    if (keycode < minimumKeycode_ || keycode > maximumKeycode_) {
        return std::nullopt;
    }
    return static_cast<xcb_keycode_t>(keycode);
}

std::optional<std::uint16_t> Keymap::modifiersOf(std::uint32_t carbonModifiers) const {
    const std::array<std::pair<std::uint32_t, std::uint16_t>, 4> meanings{{
        {cmdKey, modifiers_.command},
        {optionKey, modifiers_.option},
        {controlKey, XCB_MOD_MASK_CONTROL},
        {shiftKey, XCB_MOD_MASK_SHIFT},
    }};
    std::uint16_t mask = 0;
    for (const auto& [carbonBit, modifier] : meanings) {
        if ((carbonModifiers & carbonBit) == 0) {
            continue;
        }
        if (modifier == 0) {
            return std::nullopt;
        }
        mask |= modifier;
    }
    return mask;
}

std::vector<std::uint16_t> Keymap::lockStates() const {
    const std::uint32_t locks = XCB_MOD_MASK_LOCK | modifiers_.numLock | modifiers_.scrollLock;
    std::vector<std::uint16_t> states{0};
    // Counts down through all combinations of the bits that are set.
    for (std::uint32_t state = locks; state != 0; state = (state - 1) & locks) {
        states.push_back(static_cast<std::uint16_t>(state));
    }
    return states;
}

} // namespace platform::linux_host
