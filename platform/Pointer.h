#pragma once

#include "platform/Geometry.h"

namespace platform {

/// Where the pointer is now, in points of the global screen coordinates: origin at the bottom left
/// of the primary screen, y upward. Works during drags and while menus are open. Where the desktop
/// cannot tell, the last known place. Stands for NSEvent's mouseLocation on macOS, a pointer query
/// on Linux.
[[nodiscard]] Point mouseLocation();

} // namespace platform
