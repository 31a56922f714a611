#pragma once

#include "tests/desktop/support/XDisplay.h"

#include <string>

namespace desktop {

/// The pointer of a desktop, moved and clicked through the server's test extension. Positions are
/// in pixels from the top left. Every call returns when the server has taken it.
class Pointer {
  public:
    explicit Pointer(const std::string& display);

    void moveTo(int x, int y);
    void buttonDown(std::uint8_t button = 1);
    void buttonUp(std::uint8_t button = 1);
    void click(std::uint8_t button = 1);

  private:
    void fake(std::uint8_t kind, std::uint8_t detail, int x, int y) const;

    XDisplay display_;
};

} // namespace desktop
