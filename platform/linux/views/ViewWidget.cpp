#include "platform/linux/views/ViewWidget.h"

#include "platform/linux/keyboard/KeyEvents.h"
#include "platform/linux/views/Painting.h"
#include "platform/linux/views/ViewPeer.h"
#include "platform/linux/views/ViewSpace.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace platform::linux_host {

namespace {

constexpr std::array<std::uint16_t, 3> clickingKeys{0x31, 0x24, 0x4C}; // Space, Return, Enter

// Modifiers and repeats go to nobody. What the view does not want clicks on it, if that is what the
// key does to controls, and else may do what it does in any window.
bool isTaken(View& view, const QKeyEvent& press) {
    const auto event = keyEventFrom(press);
    if (!event) {
        return true;
    }
    View::Peer& peer = view.peer();
    peer.keyWasPassedOn = false;
    view.keyDown(*event);
    if (!peer.keyWasPassedOn) {
        return true;
    }
    if (peer.click && std::ranges::count(clickingKeys, event->keyCode) > 0) {
        peer.click();
        return true;
    }
    return false;
}

bool isInTrackingArea(const View::Peer& peer, QPointF position) {
    return std::ranges::any_of(peer.trackingAreas, [&](const auto& area) {
        return qRectOf(area.second, peer.height()).contains(position);
    });
}

bool isRounded(Size size, QSize pixels) {
    return std::abs(size.width - pixels.width()) < 1 && std::abs(size.height - pixels.height()) < 1;
}

Event mouseEventAt(const QWidget& widget, QPointF position) {
    const QWidget* const window = widget.window();
    return {.locationInWindow = pointOf(widget.mapTo(window, position), window->height())};
}

// Whoever uses the keyboard sees where it goes.
void paintFocus(QWidget& widget, QPainter& painter) {
    if (!widget.hasFocus() || !widget.window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
        return;
    }
    QStyleOptionFocusRect option;
    option.initFrom(&widget);
    option.rect = widget.rect().adjusted(1, 1, -1, -1);
    widget.style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, &widget);
}

} // namespace

ViewWidget::ViewWidget() = default;

void ViewWidget::performClick() {
    if (view_->peer().click) {
        view_->peer().click();
    }
}

QSize ViewWidget::sizeHint() const {
    return view_->peer().preferredSize();
}

// Qt asks first who else would want a key, for a shortcut or for going to the next control. While a
// view has the keyboard it is asked first.
bool ViewWidget::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::KeyRelease) {
        const auto& release = static_cast<const QKeyEvent&>(*event);
        lastRelease_ = {.key = release.nativeScanCode(), .time = release.timestamp()};
    }
    if (event->type() == QEvent::KeyPress) {
        const auto& press = static_cast<const QKeyEvent&>(*event);
        if (isRepeat(press) || isTaken(*view_, press)) {
            event->accept();
            return true;
        }
    }
    return QWidget::event(event);
}

// The server repeats a held key as a release and a press of the same moment. Qt tells so only when
// both have arrived by the time it looks.
bool ViewWidget::isRepeat(const QKeyEvent& press) const {
    return lastRelease_ == Release{.key = press.nativeScanCode(), .time = press.timestamp()};
}

void ViewWidget::enterEvent(QEnterEvent* event) {
    view_->peer().setPointerInside(isInTrackingArea(view_->peer(), event->position()));
}

void ViewWidget::leaveEvent(QEvent*) {
    view_->peer().setPointerInside(false);
}

void ViewWidget::mouseMoveEvent(QMouseEvent* event) {
    view_->peer().setPointerInside(isInTrackingArea(view_->peer(), event->position()));
}

void ViewWidget::mousePressEvent(QMouseEvent* event) {
    event->setAccepted(event->button() == Qt::LeftButton);
}

void ViewWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        return;
    }
    view_->mouseUp(mouseEventAt(*this, event->position()));
    if (rect().contains(event->position().toPoint())) {
        performClick();
    }
}

// Also when somebody else has decided on the size, as a menu does.
void ViewWidget::resizeEvent(QResizeEvent*) {
    View::Peer& peer = view_->peer();
    if (isRounded(peer.frame.size, size())) {
        return;
    }
    const Size oldSize = std::exchange(peer.frame.size, {.width = static_cast<double>(width()),
                                                         .height = static_cast<double>(height())});
    peer.resizeFrom(oldSize);
}

void ViewWidget::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    if (const auto& layer = view_->peer().layer) {
        paintLayer(painter, *layer, rect());
    }
    drawView(painter, *view_, event->rect());
    paintFocus(*this, painter);
}

} // namespace platform::linux_host
