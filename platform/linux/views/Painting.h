#pragma once

#include "platform/View.h"
#include "platform/linux/views/ViewPeer.h"

class QPainter;

namespace platform::linux_host {

/// Paints the layer of a view that has one.
void paintLayer(QPainter& painter, const Layer& layer, const QRectF& bounds);

/// Lets a view draw itself with this painter, which the functions of "platform/Drawing.h" use
/// meanwhile.
void drawView(QPainter& painter, View& view, const QRectF& dirty);

} // namespace platform::linux_host
