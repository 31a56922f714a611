#include "corners/CornerHoverMonitor.h"

#include "minimize/WindowMinimizer.h"
#include "platform/Bundle.h"
#include "platform/Pointer.h"
#include "platform/Screen.h"
#include "settings/Preferences.h"

#include <string>

using namespace std::chrono_literals;

namespace {

constexpr auto pollInterval = 80ms;
constexpr double hotZoneSize = 15;    // points: the side of the square at each corner
constexpr double dwellDuration = 0.3; // seconds of rest before firing

std::string description(const ScreenCornerSet& corners) {
    std::string text;
    for (const ScreenCorner corner : allScreenCorners) {
        if (corners.contains(corner)) {
            text += text.empty() ? "" : ", ";
            text += rawValue(corner);
        }
    }
    return "[" + text + "]";
}

// One-sided on purpose: each test bounds the point on the inner side of its zone only, so a point
// beyond the frame matches too, for instance one on a screen to the left of this one. On a screen
// smaller than two zones several tests hold, and the first one wins.
std::optional<ScreenCorner> cornerOf(const platform::Rect& frame, platform::Point point) {
    const bool isLeft = point.x <= frame.minX() + hotZoneSize;
    const bool isRight = point.x >= frame.maxX() - hotZoneSize;
    const bool isTop = point.y >= frame.maxY() - hotZoneSize;
    const bool isBottom = point.y <= frame.minY() + hotZoneSize;
    if (isLeft && isTop) {
        return ScreenCorner::topLeft;
    }
    if (isRight && isTop) {
        return ScreenCorner::topRight;
    }
    if (isLeft && isBottom) {
        return ScreenCorner::bottomLeft;
    }
    if (isRight && isBottom) {
        return ScreenCorner::bottomRight;
    }
    return std::nullopt;
}

} // namespace

CornerHoverMonitor& CornerHoverMonitor::shared() {
    // Never destroyed; shared, so that the timer can hold it weakly.
    static const auto* const instance =
        new std::shared_ptr<CornerHoverMonitor>(new CornerHoverMonitor);
    return **instance;
}

CornerHoverMonitor::CornerHoverMonitor()
    : log_(platform::Bundle::main().bundleIdentifier(), "CornerHover") {}

void CornerHoverMonitor::start() {
    stop();
    scheduleTimer();
    log_.log("CornerHoverMonitor started, enabled corners: " +
             description(Preferences::shared().hotCorners()));
}

// In the common modes, so that polling goes on while a menu is open.
void CornerHoverMonitor::scheduleTimer() {
    timer_ = platform::Timer::repeatingTimer(pollInterval, [weak = weak_from_this()] {
        if (const auto monitor = weak.lock()) {
            monitor->tick();
        }
    });
    platform::addTimerToMainRunLoop(timer_, platform::RunLoopMode::commonModes);
}

void CornerHoverMonitor::stop() {
    if (timer_) {
        timer_->invalidate();
        timer_.reset();
    }
    endVisit();
}

void CornerHoverMonitor::tick() {
    const ScreenCornerSet enabled = Preferences::shared().hotCorners();
    if (enabled.isEmpty()) {
        endVisit();
        return;
    }
    const auto hovered = corner(platform::mouseLocation());
    if (!hovered || !enabled.contains(*hovered)) {
        endVisit();
        return;
    }
    if (!dwellStart_) {
        beginVisitAt(*hovered);
    }
    fireWhenRested();
}

void CornerHoverMonitor::beginVisitAt(ScreenCorner corner) {
    dwellStart_ = platform::Date::now();
    log_.log("Cursor entered enabled corner " + std::string(rawValue(corner)));
}

void CornerHoverMonitor::endVisit() {
    dwellStart_.reset();
    didTriggerForThisVisit_ = false;
}

void CornerHoverMonitor::fireWhenRested() {
    if (didTriggerForThisVisit_ || platform::Date::now() - *dwellStart_ < dwellDuration) {
        return;
    }
    didTriggerForThisVisit_ = true;
    log_.log("Dwell time reached, revealing desktop");
    WindowMinimizer::minimizeAllWindows();
}

std::optional<ScreenCorner> CornerHoverMonitor::corner(platform::Point at) {
    for (const platform::Screen& screen : platform::screens()) {
        if (const auto corner = cornerOf(screen.frame, at)) {
            return corner;
        }
    }
    return std::nullopt;
}
