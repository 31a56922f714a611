#pragma once

#include "tests/desktop/support/WindowSpec.h"
#include "tests/desktop/support/XDisplay.h"

#include <functional>
#include <iosfwd>
#include <optional>
#include <string>

namespace desktop {

enum class ItemPlace { tray, strip };

/// The program's status item as it is to be seen at one moment.
struct ItemSight {
    ItemPlace place = ItemPlace::strip;
    Geometry frame{};
    bool showsRed = false; ///< as a countdown is

    [[nodiscard]] int centerX() const { return frame.x + frame.width / 2; }
    [[nodiscard]] int centerY() const { return frame.y + frame.height / 2; }
};

std::ostream& operator<<(std::ostream& stream, const ItemSight& sight);

/// Looks for the program's status item on a desktop.
class StatusItem {
  public:
    explicit StatusItem(const std::string& display) : display_(display) {}

    /// Nothing while no item is on the screen.
    [[nodiscard]] std::optional<ItemSight> look() const;

    /// Waits until it looks as it should. Throws `TimedOut`, telling how it looked last.
    ItemSight waitUntil(const std::function<bool(const ItemSight&)>& isSo,
                        const std::string& what) const;
    ItemSight waitUntilIn(ItemPlace place) const;

  private:
    XDisplay display_;
};

} // namespace desktop
