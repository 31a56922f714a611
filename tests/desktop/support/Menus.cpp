#include "tests/desktop/support/Menus.h"

#include "tests/desktop/support/ProgramWindows.h"
#include "tests/desktop/support/ScreenPicture.h"

namespace desktop {
namespace {

constexpr int border = 3;
constexpr int leastTextHeight = 5; // what is lower is a separator

bool hasInk(const ScreenPicture& picture, int y) {
    const std::uint32_t ground = picture.pixel(border, border);
    for (int x = border; x < picture.width() - border; ++x) {
        if (picture.pixel(x, y) != ground) {
            return true;
        }
    }
    return false;
}

} // namespace

// A tool tip is such a window too, but one line high.
std::vector<Geometry> Menus::frames() const {
    constexpr int highestTip = 40;
    std::vector<Geometry> frames;
    for (const ProgramWindow& each : programWindows(display_)) {
        if (each.isUnmanaged && each.parent == display_.root() && each.frame.height > highestTip) {
            frames.push_back(each.frame);
        }
    }
    return frames;
}

void Menus::waitUntilOpen(std::size_t count, const Deadline& deadline) const {
    waitUntil([&] { return frames().size() == count; },
              std::to_string(count) + " open menus, but there are " +
                  std::to_string(frames().size()),
              deadline);
}

std::vector<int> Menus::waitForItems(std::size_t count) const {
    std::vector<int> lines;
    waitUntil(
        [&] {
            const auto open = frames();
            lines = open.empty() ? std::vector<int>() : linesIn(open.back());
            return lines.size() == count;
        },
        "a menu of " + std::to_string(count) + " items");
    return lines;
}

// A line is a band of rows with anything but the ground in them.
std::vector<int> Menus::linesIn(const Geometry& menu) const {
    const ScreenPicture picture(display_, menu);
    std::vector<int> lines;
    int begin = border;
    for (int y = border; y < picture.height() - border; ++y) {
        if (hasInk(picture, y)) {
            continue;
        }
        if (y - begin >= leastTextHeight) {
            lines.push_back(menu.y + (begin + y) / 2);
        }
        begin = y + 1;
    }
    return lines;
}

} // namespace desktop
