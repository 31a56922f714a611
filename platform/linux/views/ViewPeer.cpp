#include "platform/linux/views/ViewPeer.h"

#include "platform/linux/menu/MenuItemPeer.h"
#include "platform/linux/views/ViewAccessibility.h"
#include "platform/linux/views/ViewSpace.h"

#include <algorithm>
#include <utility>

namespace platform {

namespace {

QSize roundedUp(Size size) {
    return {qCeil(size.width), qCeil(size.height)};
}

// A view that is placed by constraints is as large as its content, so far as there is room.
void center(View& subview, const View::Peer& around) {
    View::Peer& peer = subview.peer();
    const QSize wanted = peer.widget->sizeHint();
    const double room =
        around.frame.size.width - peer.centering->leading - peer.centering->trailing;
    const Size size{.width = std::clamp<double>(wanted.width(), 0, std::max(room, 0.0)),
                    .height = static_cast<double>(wanted.height())};
    peer.frame = {
        .origin = {.x = peer.centering->leading, .y = (around.height() - size.height) / 2},
        .size = size};
    peer.place();
}

void follow(View& subview, const View::Peer& around, Size oldSize) {
    View::Peer& peer = subview.peer();
    if (peer.centering) {
        center(subview, around);
        return;
    }
    if (peer.autoresizing == AutoresizingMask::widthAndHeightSizable) {
        Rect frame = peer.frame;
        frame.size.width += around.frame.size.width - oldSize.width;
        frame.size.height += around.frame.size.height - oldSize.height;
        subview.setFrame(frame);
    }
    peer.place();
}

} // namespace

View& linux_host::outermost(View& view) {
    View* outer = &view;
    while (outer->peer().superview != nullptr) {
        outer = outer->peer().superview;
    }
    return *outer;
}

// What is inside may be shared with others, and its widgets with it.
View::Peer::~Peer() {
    for (const auto& subview : subviews) {
        subview->peer().superview = nullptr;
        if (subview->peer().widget) {
            subview->peer().widget->setParent(nullptr);
        }
    }
    delete widget;
}

QString View::Peer::text() const {
    QStringList texts;
    for (const auto& subview : subviews) {
        texts << subview->peer().text();
    }
    return texts.join(u' ');
}

QSize View::Peer::preferredSize() const {
    QSize size = roundedUp(minimumSize);
    for (const auto& subview : subviews) {
        if (const auto& placing = subview->peer().centering) {
            const QSize content = subview->peer().widget->sizeHint();
            size = size.expandedTo(
                {qCeil(placing->leading + content.width() + placing->trailing), content.height()});
        }
    }
    return size;
}

void View::Peer::place() {
    const double heightAround = superview != nullptr ? superview->peer().height() : frame.maxY();
    widget->setGeometry(linux_host::qRectOf(frame, heightAround).toRect());
}

void View::Peer::resizeFrom(Size oldSize) {
    if (oldSize == frame.size) {
        return;
    }
    for (const auto& subview : subviews) {
        follow(*subview, *this, oldSize);
    }
    if (view->window() != nullptr) {
        view->updateTrackingAreas();
    }
}

// Outside a window nobody sees the place, and the fonts that it is measured with are dear.
void View::Peer::contentDidChange() {
    if (superview != nullptr && centering && view->window() != nullptr) {
        center(*view, superview->peer());
        superview->peer().widget->updateGeometry();
    }
    if (superview != nullptr && superview->peer().click) {
        linux_host::announceText(*superview);
    }
    if (MenuItem* const item = view->enclosingMenuItem()) {
        item->peer().viewDidChange();
    }
}

// A view that takes the keyboard can be reached with it.
void View::Peer::moveToWindow() {
    if (view->acceptsFirstResponder()) {
        widget->setFocusPolicy(Qt::StrongFocus);
    }
    if (view->window() != nullptr) {
        view->updateTrackingAreas();
        contentDidChange();
    }
    view->viewDidMoveToWindow();
    for (const auto& subview : subviews) {
        subview->peer().moveToWindow();
    }
}

void View::Peer::setPointerInside(bool isInside) {
    if (trackingAreas.empty() || std::exchange(pointerIsInside, isInside) == isInside) {
        return;
    }
    const Event event{};
    if (isInside) {
        view->mouseEntered(event);
    } else {
        view->mouseExited(event);
    }
}

} // namespace platform
