#pragma once

namespace platform {

/// How an application shows itself on the desktop. The values are AppKit's.
enum class ActivationPolicy {
    regular = 0,    ///< an ordinary application with windows; has a Dock icon or task-bar entry
    accessory = 1,  ///< may have windows, but no Dock icon or task-bar entry
    prohibited = 2, ///< background only
};

} // namespace platform
