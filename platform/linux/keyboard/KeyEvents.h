#pragma once

#include "platform/Event.h"

#include <optional>

class QKeyEvent;

namespace platform::linux_host {

/// A key press as a view hears of it, told by the key's position. Empty for what is no key press by
/// itself: modifiers and lock keys, repeats of a key that is held, keys without a virtual key code.
[[nodiscard]] std::optional<Event> keyEventFrom(const QKeyEvent& press);

} // namespace platform::linux_host
