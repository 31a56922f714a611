#include "platform/simulated/View.h"

#include "platform/simulated/Desktop.h"
#include "platform/simulated/Misuse.h"

#include <algorithm>

namespace simulated {
namespace {

std::uintptr_t lastTrackingArea = 0;

bool contains(platform::Rect rect, platform::Point point) {
    return point.x >= rect.minX() && point.x < rect.maxX() && point.y >= rect.minY() &&
           point.y < rect.maxY();
}

} // namespace

View& stateOf(const platform::View& view) {
    return *view.peer().view;
}

View::~View() {
    for (View* const subview : subviews()) {
        subview->superview_ = nullptr;
    }
}

std::vector<View*> View::subviews() const {
    std::vector<View*> views;
    for (const auto& subview : subviews_) {
        views.push_back(&stateOf(*subview));
    }
    return views;
}

std::vector<platform::Rect> View::trackingAreas() const {
    std::vector<platform::Rect> rects;
    for (const auto& [name, area] : trackingAreas_) {
        rects.push_back(area.rect);
    }
    return rects;
}

ProgramWindow& View::requireOnScreen(const char* deed) const {
    ProgramWindow* const shown = window();
    if (shown == nullptr || !shown->isVisible()) {
        misuse(std::string("the user ") + deed + " what is not on the screen: " + name());
    }
    return *shown;
}

void View::click() {
    requireOnScreen("clicks on").takeKeyboard();
    for (const auto& action : std::vector(clickActions_)) {
        action();
    }
}

void View::releaseMouseButton(platform::Point at) {
    requireOnScreen("releases the mouse button on");
    self_->mouseUp({.locationInWindow = at});
}

void View::setFrame(platform::Rect frame) {
    const platform::Size before = frame_.size;
    frame_ = frame;
    if (frame.size == before) {
        return;
    }
    resizeSubviews(before);
    if (platformWindow() != nullptr) {
        self_->updateTrackingAreas();
    }
}

void View::resizeSubviews(platform::Size before) {
    for (View* const subview : subviews()) {
        if (subview->autoresizingMask_ == platform::AutoresizingMask::widthAndHeightSizable) {
            platform::Rect frame = subview->frame_;
            frame.size.width += frame_.size.width - before.width;
            frame.size.height += frame_.size.height - before.height;
            subview->setFrame(frame);
        }
    }
}

void View::addSubview(std::shared_ptr<platform::View> subview) {
    if (subview == nullptr) {
        misuse("no view is added to a view");
    }
    View& state = stateOf(*subview);
    if (state.superview_ != nullptr || state.window_ != nullptr || &state.root() == &root()) {
        misuse("a view is added to a view that has its place already: " + state.name());
    }
    subviews_.push_back(std::move(subview));
    state.superview_ = this;
    if (platformWindow() != nullptr) {
        state.announceMove();
    }
}

void View::setPlace(View& subview, Place place) {
    if (subview.superview_ != this) {
        misuse("constraints place a view that is no subview: " + subview.name());
    }
    subview.place_ = place;
}

void View::addLayer() {
    if (!layer_) {
        layer_.emplace();
    }
}

Layer& View::requireLayer() {
    if (!layer_) {
        misuse("a layer is changed of a view that has none: " + name());
    }
    return *layer_;
}

platform::TrackingArea View::addTrackingArea(platform::Rect rect) {
    const platform::TrackingArea area{++lastTrackingArea};
    trackingAreas_[area] = {rect};
    return area;
}

void View::removeTrackingArea(platform::TrackingArea area) {
    if (trackingAreas_.erase(area) == 0) {
        misuse("a tracking area is removed that the view does not have: " + name());
    }
}

void View::addClickAction(std::function<void()> action) {
    if (!action) {
        misuse("clicks are recognized for nobody: " + name());
    }
    clickActions_.push_back(std::move(action));
}

const View& View::root() const {
    return superview_ == nullptr ? *this : superview_->root();
}

platform::Point View::fromWindow(platform::Point point) const {
    const platform::Point outer =
        superview_ == nullptr
            ? platform::Point{point.x - originInWindow_.x, point.y - originInWindow_.y}
            : superview_->fromWindow(point);
    return {outer.x - frame_.origin.x, outer.y - frame_.origin.y};
}

platform::Window* View::platformWindow() const {
    return root().window_;
}

ProgramWindow* View::window() const {
    platform::Window* const window = platformWindow();
    return window == nullptr ? nullptr : &stateOf(*window);
}

void View::moveToWindow(platform::Window* window, platform::Point origin) {
    window_ = window;
    originInWindow_ = origin;
    announceMove();
}

// Each view before its subviews.
void View::announceMove() {
    self_->viewDidMoveToWindow();
    if (platformWindow() != nullptr) {
        self_->updateTrackingAreas();
    }
    for (View* const subview : subviews()) {
        subview->announceMove();
    }
}

void View::setMenuItem(platform::MenuItem* item) {
    if (item != nullptr && (menuItem_ != nullptr || superview_ != nullptr)) {
        misuse("a menu item is filled with a view that has its place already: " + name());
    }
    menuItem_ = item;
}

platform::MenuItem* View::menuItem() const {
    return root().menuItem_;
}

// An area that comes to lie under the pointer hears of that when the pointer moves next. Hearing of
// it, the view may renew its areas.
void View::pointerMoved(platform::Point at) {
    for (const auto& [name, area] : std::map(trackingAreas_)) {
        const auto tracked = trackingAreas_.find(name);
        const bool isInside = contains(area.rect, fromWindow(at));
        if (tracked == trackingAreas_.end() || tracked->second.hasPointer == isInside) {
            continue;
        }
        tracked->second.hasPointer = isInside;
        const platform::Event event{.locationInWindow = at};
        isInside ? self_->mouseEntered(event) : self_->mouseExited(event);
    }
    for (View* const subview : subviews()) {
        subview->pointerMoved(at);
    }
}

void View::keyDown(const platform::Event& event) {
    self_->keyDown(event);
}

} // namespace simulated
