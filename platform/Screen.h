#pragma once

#include "platform/Geometry.h"

#include <span>

namespace platform {

/// One screen of the desktop.
struct Screen {
    /// The whole screen, bars and Dock included, in points of the global screen coordinates.
    Rect frame;
};

/// The screens, the primary one first, then in the desktop's own order; empty when there are none.
/// Borrowed: good until the next turn of the run loop. Stands for NSScreen's screens on macOS, the
/// RandR monitors on Linux, which are read again only when the server says that they changed.
[[nodiscard]] std::span<const Screen> screens();

} // namespace platform
