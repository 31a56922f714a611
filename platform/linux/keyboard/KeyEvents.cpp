#include "platform/linux/keyboard/KeyEvents.h"

#include "platform/linux/keyboard/KeyCodes.h"

#include <QKeyEvent>
#include <array>

namespace platform::linux_host {

namespace {

constexpr std::uint32_t keycodeOffset = 8; // an X keycode is the kernel's code and this

constexpr std::uint32_t firstModifierKey = 0x36; // Right Command
constexpr std::uint32_t lastModifierKey = 0x3F;  // Function

struct ModifierBit {
    Qt::KeyboardModifier qt;
    std::uint32_t flag;
};

constexpr std::array<ModifierBit, 4> modifierBits{{
    {Qt::ShiftModifier, modifierFlagShift},
    {Qt::ControlModifier, modifierFlagControl},
    {Qt::AltModifier, modifierFlagOption},
    {Qt::MetaModifier, modifierFlagCommand},
}};

std::uint32_t modifierFlagsOf(const QKeyEvent& press) {
    std::uint32_t flags = 0;
    for (const auto& [qt, flag] : modifierBits) {
        flags |= press.modifiers().testFlag(qt) ? flag : 0;
    }
    return flags;
}

bool isModifierKey(std::uint32_t virtualKey) {
    return virtualKey >= firstModifierKey && virtualKey <= lastModifierKey;
}

} // namespace

std::optional<Event> keyEventFrom(const QKeyEvent& press) {
    if (press.isAutoRepeat() || press.nativeScanCode() < keycodeOffset) {
        return std::nullopt;
    }
    const auto virtualKey = virtualKeyOf(press.nativeScanCode() - keycodeOffset);
    if (!virtualKey || isModifierKey(*virtualKey)) {
        return std::nullopt;
    }
    return Event{.locationInWindow = {},
                 .modifierFlags = modifierFlagsOf(press),
                 .keyCode = static_cast<std::uint16_t>(*virtualKey)};
}

} // namespace platform::linux_host
