#pragma once

#include "platform/Geometry.h"

#include <QPointF>
#include <QRectF>

/// Within windows, the seam's coordinates have their origin at the lower left corner of the area
/// around, and Qt's at its upper left. This is the one place where y is turned over; a point is one
/// of Qt's logical pixels. `height` is that of the area around.
namespace platform::linux_host {

[[nodiscard]] inline QRectF qRectOf(Rect rect, double height) {
    return {rect.minX(), height - rect.maxY(), rect.size.width, rect.size.height};
}

[[nodiscard]] inline Rect rectOf(const QRectF& rect, double height) {
    return {.origin = {.x = rect.x(), .y = height - rect.y() - rect.height()},
            .size = {.width = rect.width(), .height = rect.height()}};
}

[[nodiscard]] inline Point pointOf(QPointF point, double height) {
    return {.x = point.x(), .y = height - point.y()};
}

} // namespace platform::linux_host
