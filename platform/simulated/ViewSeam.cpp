#include "platform/View.h"

#include "platform/simulated/Desktop.h"
#include "platform/simulated/Text.h"

// The seam's half of "platform/simulated/View.h".

namespace platform {

using simulated::desktop;
using simulated::stateOf;
using simulated::text;

View::View(std::unique_ptr<Peer> peer) : peer_(std::move(peer)) {
    peer_->view->attach(*this);
}

View::View(Rect frame)
    : View(std::make_unique<Peer>(Peer{std::make_unique<simulated::View>(frame)})) {
    desktop().calls.record("View", {text(frame)});
}

View::~View() = default;

Rect View::frame() const {
    return stateOf(*this).frame();
}

void View::setFrame(Rect frame) {
    desktop().calls.record("setFrame", {stateOf(*this).name(), text(frame)});
    stateOf(*this).setFrame(frame);
}

Rect View::bounds() const {
    return stateOf(*this).bounds();
}

void View::addSubview(const std::shared_ptr<View>& subview) {
    desktop().calls.record("addSubview", {subview == nullptr ? "none" : stateOf(*subview).name()});
    stateOf(*this).addSubview(subview);
}

void View::setAutoresizingMask(AutoresizingMask mask) {
    desktop().calls.record("setAutoresizingMask",
                           {std::to_string(static_cast<std::uint32_t>(mask))});
    stateOf(*this).setAutoresizingMask(mask);
}

void View::constrainCenteredVertically(View& subview, double leading, double trailing) {
    desktop().calls.record("constrainCenteredVertically", {text(leading), text(trailing)});
    stateOf(*this).setPlace(stateOf(subview), {leading, trailing});
}

Window* View::window() const {
    return stateOf(*this).platformWindow();
}

MenuItem* View::enclosingMenuItem() const {
    return stateOf(*this).menuItem();
}

void View::setNeedsDisplay() {
    desktop().calls.record("setNeedsDisplay");
    stateOf(*this).setNeedsDisplay();
}

TrackingArea View::addTrackingArea(Rect rect, TrackingAreaOptions) {
    desktop().calls.record("addTrackingArea", {text(rect)});
    return stateOf(*this).addTrackingArea(rect);
}

void View::removeTrackingArea(TrackingArea area) {
    desktop().calls.record("removeTrackingArea");
    stateOf(*this).removeTrackingArea(area);
}

Point View::convertFromWindow(Point point) const {
    return stateOf(*this).fromWindow(point);
}

void View::setWantsLayer() {
    desktop().calls.record("setWantsLayer");
    stateOf(*this).addLayer();
}

void View::setLayerCornerRadius(double points) {
    desktop().calls.record("setLayerCornerRadius", {text(points)});
    stateOf(*this).requireLayer().cornerRadius = points;
}

void View::setLayerBorderWidth(double points) {
    desktop().calls.record("setLayerBorderWidth", {text(points)});
    stateOf(*this).requireLayer().borderWidth = points;
}

void View::setLayerBackgroundColor(CGColor color) {
    desktop().calls.record("setLayerBackgroundColor");
    stateOf(*this).requireLayer().backgroundColor = color;
}

void View::setLayerBorderColor(CGColor color) {
    desktop().calls.record("setLayerBorderColor");
    stateOf(*this).requireLayer().borderColor = color;
}

void View::addClickGestureRecognizer(std::function<void()> action) {
    desktop().calls.record("addClickGestureRecognizer");
    stateOf(*this).addClickAction(std::move(action));
}

bool View::acceptsFirstResponder() const {
    return false;
}
void View::viewDidMoveToWindow() {}
void View::updateTrackingAreas() {}
void View::mouseEntered(const Event&) {}
void View::mouseExited(const Event&) {}
void View::mouseUp(const Event&) {}
void View::draw(Rect) {}

// The view behind may want it; at last the window takes note that nobody did.
void View::keyDown(const Event& event) {
    if (simulated::View* const superview = stateOf(*this).superview()) {
        superview->keyDown(event);
    } else if (simulated::ProgramWindow* const window = stateOf(*this).window()) {
        window->takeUnansweredKey(event);
    }
}

} // namespace platform
