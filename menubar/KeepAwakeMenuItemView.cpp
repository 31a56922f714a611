#include "menubar/KeepAwakeMenuItemView.h"

#include "keepawake/KeepAwakeManager.h"
#include "platform/Drawing.h"
#include "platform/FatalError.h"
#include "platform/Menu.h"

using namespace std::chrono_literals;

namespace {

constexpr double textMargin = 14;           // points, left and right
constexpr double highlightInset = 5;        // points, left and right
constexpr double highlightCornerRadius = 4; // points

platform::Rect insetBy(double dx, platform::Rect rect) {
    return {{rect.origin.x + dx, rect.origin.y}, {rect.size.width - 2 * dx, rect.size.height}};
}

// The lower edges belong to a rectangle, the upper ones do not.
bool contains(platform::Rect rect, platform::Point point) {
    return point.x >= rect.minX() && point.x < rect.maxX() && point.y >= rect.minY() &&
           point.y < rect.maxY();
}

} // namespace

KeepAwakeMenuItemView::KeepAwakeMenuItemView(platform::Rect frame)
    : View(frame), label_(platform::TextField::labelWithString("")) {
    label_->setFont(platform::Font::menu(0));
    addSubview(label_);
    constrainCenteredVertically(*label_, textMargin, textMargin);
}

KeepAwakeMenuItemView::KeepAwakeMenuItemView(const platform::Coder&) : View(platform::Rect{}) {
    platform::fatalError("init(coder:) has not been implemented");
}

void KeepAwakeMenuItemView::refresh(bool active, double remaining) {
    isActive_ = active;
    label_->setStringValue(active ? "Keep Awake: " + KeepAwakeManager::formatted(remaining) +
                                        " remaining"
                                  : "Keep Awake: Off");
    if (!isHighlighted_) { // else it stays white until the pointer leaves
        label_->setTextColor(textColor());
    }
}

platform::Color KeepAwakeMenuItemView::textColor() const {
    return isActive_ ? platform::Color::systemRed : platform::Color::label;
}

// In a window means that the menu is open. Nothing is refreshed at once: until the first tick the
// row shows what it was last told.
void KeepAwakeMenuItemView::viewDidMoveToWindow() {
    View::viewDidMoveToWindow();
    stopRefreshTimer();
    if (window() != nullptr) {
        startRefreshTimer();
    }
}

// In the default mode alone, unlike the corner poll, and meant so.
void KeepAwakeMenuItemView::startRefreshTimer() {
    refreshTimer_ = platform::Timer::scheduledRepeatingTimer(1.0s, [weak = weak_from_this()] {
        if (const auto view = weak.lock()) {
            static_cast<KeepAwakeMenuItemView&>(*view).refreshFromManager();
        }
    });
}

void KeepAwakeMenuItemView::stopRefreshTimer() {
    if (refreshTimer_) {
        refreshTimer_->invalidate();
        refreshTimer_.reset();
    }
}

void KeepAwakeMenuItemView::refreshFromManager() {
    const KeepAwakeManager& manager = KeepAwakeManager::shared();
    refresh(manager.isActive(), manager.remainingSeconds());
}

void KeepAwakeMenuItemView::updateTrackingAreas() {
    View::updateTrackingAreas();
    if (trackingArea_) {
        removeTrackingArea(*trackingArea_);
    }
    trackingArea_ =
        addTrackingArea(bounds(), platform::TrackingAreaOptions::mouseEnteredAndExitedActiveAlways);
}

void KeepAwakeMenuItemView::mouseEntered(const platform::Event&) {
    isHighlighted_ = true;
    label_->setTextColor(platform::Color::white);
    setNeedsDisplay();
}

void KeepAwakeMenuItemView::mouseExited(const platform::Event&) {
    isHighlighted_ = false;
    label_->setTextColor(textColor());
    setNeedsDisplay();
}

// While highlighted the place of the click is not looked at. The base is not called.
void KeepAwakeMenuItemView::mouseUp(const platform::Event& event) {
    if (!isHighlighted_ && !contains(bounds(), convertFromWindow(event.locationInWindow))) {
        return;
    }
    const platform::MenuItem* const item = enclosingMenuItem();
    if (item != nullptr && item->menu() != nullptr) {
        item->menu()->cancelTracking();
    }
    if (onClick) {
        onClick();
    }
}

void KeepAwakeMenuItemView::draw(platform::Rect dirtyRect) {
    if (isHighlighted_) {
        platform::fillRoundedRect(insetBy(highlightInset, bounds()), highlightCornerRadius,
                                  highlightCornerRadius,
                                  platform::Color::selectedContentBackground);
    }
    View::draw(dirtyRect);
}
