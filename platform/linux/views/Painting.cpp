#include "platform/linux/views/Painting.h"

#include "platform/Drawing.h"
#include "platform/linux/views/Appearance.h"
#include "platform/linux/views/ViewSpace.h"

#include <QPainter>
#include <utility>

namespace platform {

namespace {

// Who draws at the moment, and on what.
struct Canvas {
    QPainter* painter = nullptr;
    const View* view = nullptr;
};

Canvas current;

QColor qColorOf(const CGColor& color) {
    return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
                            static_cast<float>(color.blue), static_cast<float>(color.alpha));
}

} // namespace

// The border lies within the bounds, as wide as it is.
void linux_host::paintLayer(QPainter& painter, const Layer& layer, const QRectF& bounds) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(layer.background ? QBrush(qColorOf(*layer.background)) : QBrush(Qt::NoBrush));
    painter.setPen(layer.borderWidth > 0 && layer.border
                       ? QPen(qColorOf(*layer.border), layer.borderWidth)
                       : QPen(Qt::NoPen));
    const double inset = layer.borderWidth / 2;
    const double radius = layer.cornerRadius - inset;
    painter.drawRoundedRect(bounds.adjusted(inset, inset, -inset, -inset), radius, radius);
}

void linux_host::drawView(QPainter& painter, View& view, const QRectF& dirty) {
    const Canvas outer = std::exchange(current, {.painter = &painter, .view = &view});
    view.draw(rectOf(dirty, view.peer().height()));
    current = outer;
}

void fillRoundedRect(Rect rect, double xRadius, double yRadius, Color fillColor) {
    if (current.painter == nullptr) {
        return;
    }
    const View::Peer& peer = current.view->peer();
    current.painter->setRenderHint(QPainter::Antialiasing);
    current.painter->setPen(Qt::NoPen);
    current.painter->setBrush(linux_host::qColor(fillColor, peer.widget->palette()));
    current.painter->drawRoundedRect(linux_host::qRectOf(rect, peer.height()), xRadius, yRadius);
}

} // namespace platform
