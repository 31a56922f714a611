#pragma once

#include "tests/desktop/support/Deadline.h"
#include "tests/desktop/support/WindowSpec.h"
#include "tests/desktop/support/XDisplay.h"

#include <string>
#include <vector>

namespace desktop {

/// The program's open menus as they are to be seen on the screen.
class Menus {
  public:
    explicit Menus(const std::string& display) : display_(display) {}

    /// Their frames, each after the one that it was opened from.
    [[nodiscard]] std::vector<Geometry> frames() const;

    /// Waits until so many are open. Throws `TimedOut`.
    void waitUntilOpen(std::size_t count, const Deadline& deadline = Deadline()) const;

    /// The heights at which the items are, from the top of the screen: separators do not count.
    /// Waits until the menu that was opened last has painted so many.
    [[nodiscard]] std::vector<int> waitForItems(std::size_t count) const;

  private:
    [[nodiscard]] std::vector<int> linesIn(const Geometry& menu) const;

    XDisplay display_;
};

} // namespace desktop
