#include "tests/desktop/support/StatusItem.h"

#include "tests/desktop/support/ProgramWindows.h"
#include "tests/desktop/support/ScreenPicture.h"

#include <algorithm>
#include <ostream>
#include <sstream>

namespace desktop {
namespace {

constexpr auto itemTitle = "Quellbar";

bool isRed(std::uint32_t color) {
    const std::uint32_t red = color >> 16U;
    const std::uint32_t green = (color >> 8U) & 0xFFU;
    const std::uint32_t blue = color & 0xFFU;
    return red > 200 && green > 30 && green < 110 && blue > 30 && blue < 110;
}

bool showsRed(const XDisplay& display, const Geometry& part) {
    const ScreenPicture picture(display, part);
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            count += isRed(picture.pixel(x, y)) ? 1 : 0;
        }
    }
    return count > 5;
}

// A part beyond the screen cannot be read; an item there cannot be seen.
bool isWithin(const xcb_screen_t& screen, const Geometry& frame) {
    return frame.x >= 0 && frame.y >= 0 && frame.width > 0 &&
           frame.x + frame.width <= screen.width_in_pixels &&
           frame.y + frame.height <= screen.height_in_pixels;
}

} // namespace

std::ostream& operator<<(std::ostream& stream, const ItemSight& sight) {
    return stream << (sight.place == ItemPlace::tray ? "in a tray" : "in a strip") << " at "
                  << sight.frame.x << "," << sight.frame.y << ", " << sight.frame.width << "x"
                  << sight.frame.height << (sight.showsRed ? ", red" : "");
}

std::optional<ItemSight> StatusItem::look() const {
    for (const ProgramWindow& each : programWindows(display_)) {
        if (display_.text(each.window, "_NET_WM_NAME") != itemTitle ||
            !isWithin(display_.screen(), each.frame)) {
            continue;
        }
        const bool isStrip = saysItIs(display_, each.window, "_NET_WM_WINDOW_TYPE_DOCK");
        if (isStrip || each.parent != display_.root()) {
            return ItemSight{.place = isStrip ? ItemPlace::strip : ItemPlace::tray,
                             .frame = each.frame,
                             .showsRed = showsRed(display_, each.frame)};
        }
    }
    return std::nullopt;
}

ItemSight StatusItem::waitUntil(const std::function<bool(const ItemSight&)>& isSo,
                                const std::string& what) const {
    std::optional<ItemSight> sight;
    try {
        desktop::waitUntil(
            [&] {
                sight = look();
                return sight && isSo(*sight);
            },
            what, Deadline(std::chrono::seconds{20}));
    } catch (const TimedOut&) {
        std::ostringstream last;
        if (sight) {
            last << *sight;
        } else {
            last << "nowhere";
        }
        throw TimedOut(what + "; the status item was last seen " + last.str());
    }
    return *sight;
}

ItemSight StatusItem::waitUntilIn(ItemPlace place) const {
    return waitUntil([place](const ItemSight& sight) { return sight.place == place; },
                     place == ItemPlace::tray ? "the tray to take the item" : "the strip");
}

} // namespace desktop
