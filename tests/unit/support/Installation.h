#pragma once

#include "platform/simulated/Desktop.h"

/// Installs the program as it is shipped: its images lie in its main bundle.
inline void installQuellbar() {
    auto& desktop = simulated::desktop();
    for (const auto* const icon : {"menubar_icon.png", "menubar_icon_active.png"}) {
        desktop.files.addFile(desktop.bundle.path / icon, simulated::pngFile(18, 18));
    }
    desktop.files.addFile(desktop.bundle.path / "icon_512x512.png", simulated::pngFile(512, 512));
}
