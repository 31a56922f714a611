#pragma once

#include "platform/Geometry.h"
#include "tests/desktop/support/Monitors.h"
#include "tests/desktop/support/Pointer.h"

#include <vector>

namespace contract {

/// The monitors and the pointer of a virtual desktop, in points of the global screen coordinates.
class LinuxScreens {
  public:
    /// The desktop has to outlive this.
    explicit LinuxScreens(const desktop::VirtualDesktop& desktop);

    /// The primary screen first. All of them have to fit on the desktop.
    void arrange(const std::vector<platform::Rect>& frames);
    void movePointer(platform::Point to);

  private:
    desktop::Monitors monitors_;
    desktop::Pointer pointer_;
    platform::Point topLeft_; // of all screens together: where X has its origin
};

} // namespace contract
