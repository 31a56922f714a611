#include "contract/LinuxScreens.h"

#include <algorithm>
#include <string>

namespace contract {
namespace {

using platform::Point;
using platform::Rect;

Point topLeftOf(const std::vector<Rect>& frames) {
    Point corner{frames.front().minX(), frames.front().maxY()};
    for (const Rect& frame : frames) {
        corner = {std::min(corner.x, frame.minX()), std::max(corner.y, frame.maxY())};
    }
    return corner;
}

desktop::Geometry geometryOf(const Rect& frame, Point topLeft) {
    return {.x = static_cast<std::int16_t>(frame.minX() - topLeft.x),
            .y = static_cast<std::int16_t>(topLeft.y - frame.maxY()),
            .width = static_cast<std::uint16_t>(frame.size.width),
            .height = static_cast<std::uint16_t>(frame.size.height)};
}

} // namespace

LinuxScreens::LinuxScreens(const desktop::VirtualDesktop& desktop)
    : monitors_(desktop), pointer_(desktop.display()) {}

void LinuxScreens::arrange(const std::vector<Rect>& frames) {
    topLeft_ = topLeftOf(frames);
    std::vector<desktop::Monitor> monitors;
    for (const Rect& frame : frames) {
        monitors.push_back({.name = "screen" + std::to_string(monitors.size()),
                            .geometry = geometryOf(frame, topLeft_)});
    }
    monitors_.arrange(monitors);
}

void LinuxScreens::movePointer(Point to) {
    pointer_.moveTo(static_cast<int>(to.x - topLeft_.x), static_cast<int>(topLeft_.y - to.y));
}

} // namespace contract
