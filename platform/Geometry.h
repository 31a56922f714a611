#pragma once

namespace platform {

/// A position in points; the origin is at the bottom left, y grows upward.
struct Point {
    double x = 0;
    double y = 0;

    bool operator==(const Point&) const = default;
};

/// An extent in points.
struct Size {
    double width = 0;
    double height = 0;

    bool operator==(const Size&) const = default;
};

/// A rectangle in points, by its lower left corner and its extent.
struct Rect {
    Point origin;
    Size size;

    [[nodiscard]] double minX() const { return origin.x; }
    [[nodiscard]] double minY() const { return origin.y; }
    [[nodiscard]] double maxX() const { return origin.x + size.width; }
    [[nodiscard]] double maxY() const { return origin.y + size.height; }

    bool operator==(const Rect&) const = default;
};

} // namespace platform
