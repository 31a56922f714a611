#include "platform/View.h"

#include "platform/linux/menu/MenuItemPeer.h"
#include "platform/linux/views/ViewPeer.h"
#include "platform/linux/views/ViewSpace.h"
#include "platform/linux/views/ViewWidget.h"

#include <utility>

namespace platform {

namespace {

using linux_host::outermost;

linux_host::Layer& layerOf(View& view) {
    auto& layer = view.peer().layer;
    if (!layer) {
        layer.emplace();
    }
    view.setNeedsDisplay();
    return *layer;
}

void detach(View& subview) {
    View::Peer& peer = subview.peer();
    if (peer.superview != nullptr) {
        std::erase_if(peer.superview->peer().subviews,
                      [&subview](const auto& other) { return other.get() == &subview; });
        peer.superview = nullptr;
    }
}

} // namespace

View::View(std::unique_ptr<Peer> peer) : peer_(std::move(peer)) {
    peer_->view = this;
}

View::View(Rect frame) : View(std::make_unique<Peer>(new linux_host::ViewWidget, frame)) {
    peer_->minimumSize = frame.size;
    static_cast<linux_host::ViewWidget&>(*peer_->widget).setView(*this);
    peer_->place();
}

View::~View() = default;

Rect View::frame() const {
    return peer_->frame;
}

void View::setFrame(Rect frame) {
    const Size oldSize = std::exchange(peer_->frame, frame).size;
    peer_->minimumSize = frame.size;
    peer_->place();
    peer_->resizeFrom(oldSize);
}

Rect View::bounds() const {
    return {.origin = {}, .size = peer_->frame.size};
}

void View::addSubview(const std::shared_ptr<View>& subview) {
    detach(*subview);
    Peer& added = subview->peer();
    peer_->subviews.push_back(subview);
    added.superview = this;
    added.widget->setParent(peer_->widget);
    added.place();
    added.widget->show();
    if (window() != nullptr) {
        added.moveToWindow();
    }
}

void View::setAutoresizingMask(AutoresizingMask mask) {
    peer_->autoresizing = mask;
}

void View::constrainCenteredVertically(View& subview, double leading, double trailing) {
    subview.peer().centering = linux_host::Centering{.leading = leading, .trailing = trailing};
    subview.peer().contentDidChange();
}

Window* View::window() const {
    return outermost(const_cast<View&>(*this)).peer().window;
}

MenuItem* View::enclosingMenuItem() const {
    return outermost(const_cast<View&>(*this)).peer().menuItem;
}

void View::setNeedsDisplay() {
    peer_->widget->update();
}

// The pointer's moves are told only to a widget that has asked for them.
TrackingArea View::addTrackingArea(Rect rect, TrackingAreaOptions) {
    static std::uintptr_t last = 0;
    const TrackingArea area{++last};
    peer_->trackingAreas.emplace(area, rect);
    peer_->widget->setMouseTracking(true);
    return area;
}

void View::removeTrackingArea(TrackingArea area) {
    peer_->trackingAreas.erase(area);
}

Point View::convertFromWindow(Point point) const {
    const QWidget* const widget = peer_->widget;
    const QWidget* const around = widget->window();
    const QPointF inWindow(point.x, around->height() - point.y);
    return linux_host::pointOf(widget->mapFrom(around, inWindow), peer_->height());
}

void View::setWantsLayer() {
    layerOf(*this);
}

void View::setLayerCornerRadius(double points) {
    layerOf(*this).cornerRadius = points;
}

void View::setLayerBorderWidth(double points) {
    layerOf(*this).borderWidth = points;
}

void View::setLayerBackgroundColor(CGColor color) {
    layerOf(*this).background = color;
}

void View::setLayerBorderColor(CGColor color) {
    layerOf(*this).border = color;
}

void View::addClickGestureRecognizer(std::function<void()> action) {
    peer_->click = std::move(action);
}

bool View::acceptsFirstResponder() const {
    return false;
}

void View::viewDidMoveToWindow() {}

void View::updateTrackingAreas() {}

void View::mouseEntered(const Event&) {}

void View::mouseExited(const Event&) {}

void View::mouseUp(const Event&) {}

void View::keyDown(const Event&) {
    peer_->keyWasPassedOn = true;
}

void View::draw(Rect) {}

} // namespace platform
