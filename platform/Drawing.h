#pragma once

#include "platform/Color.h"
#include "platform/Geometry.h"

namespace platform {

/// Fills a rectangle with rounded corners. Only while a view draws; in that view's coordinates, all
/// in points. Stands for NSColor's setFill and NSBezierPath on macOS, QPainter on Linux.
void fillRoundedRect(Rect rect, double xRadius, double yRadius, Color fillColor);

} // namespace platform
