#pragma once

#include "tests/desktop/support/VirtualDesktop.h"
#include "tests/desktop/support/WindowSpec.h"

#include <string>
#include <vector>

namespace desktop {

/// A part of the X screen that the server presents as a monitor of its own.
struct Monitor {
    std::string name; ///< one word
    Geometry geometry;
};

/// The monitors of a desktop. There is one, as large as the screen, until others are arranged.
class Monitors {
  public:
    /// The desktop has to outlive this.
    explicit Monitors(const VirtualDesktop& desktop) : desktop_(desktop) {}

    /// Has these be the monitors, the primary one first; none brings the one back that there was at
    /// the start. Returns when the server presents them.
    void arrange(const std::vector<Monitor>& monitors);

  private:
    void remove();
    void add(const Monitor& monitor, bool isPrimary);

    const VirtualDesktop& desktop_;
    std::vector<std::string> names_;
};

} // namespace desktop
