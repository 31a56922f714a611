#include "unit/year/Model.h"

#include <algorithm>
#include <utility>

using namespace std::chrono_literals;

void Model::pass(Time duration) {
    const Time end = uptime_ + duration;
    while (Timer* const timer = nextDueBy(end)) {
        spend(std::max(timer->due - uptime_, Time::zero()));
        while (timer->due <= uptime_) {
            timer->due += timer->interval;
        }
        timer == &poll_ ? poll() : tick();
    }
    spend(std::max(end - uptime_, Time::zero()));
}

void Model::spend(Time duration) {
    uptime_ += duration;
    wallTime_ += duration;
}

Model::Timer* Model::nextDueBy(Time moment) {
    std::vector<Timer*> due;
    for (Timer* const timer : {&poll_, &tick_}) {
        const bool isHeldUp = timer == &tick_ && isMenuOpen_;
        if (timer->isOn && !isHeldUp && timer->due <= moment) {
            due.push_back(timer);
        }
    }
    const auto next = std::ranges::min_element(
        due, {}, [](const Timer* timer) { return std::pair(timer->due, timer->age); });
    return next == due.end() ? nullptr : *next;
}

void Model::turnOn(Timer& timer) {
    timer.isOn = true;
    timer.due = uptime_ + timer.interval;
    timer.age = ++timersAdded_;
}

void Model::turnOff(Timer& timer) {
    if (std::exchange(timer.isOn, false)) {
        expect("Timer::invalidate()");
    }
}

void Model::startCorners() {
    stopCorners();
    turnOn(poll_);
    expect("Timer::repeatingTimer(80 ms)");
    expect("stringArrayForKey(hotCorners)");
    std::string list;
    for (const std::string& corner : enabledCorners) {
        list += (list.empty() ? "" : ", ") + corner;
    }
    expect("Logger::log(CornerHoverMonitor started, enabled corners: [" + list + "])");
}

void Model::stopCorners() {
    turnOff(poll_);
    visit_.reset();
}

void Model::poll() {
    expect("stringArrayForKey(hotCorners)");
    if (std::ranges::count(enabledCorners, pointerCorner) == 0) {
        visit_.reset();
        return;
    }
    if (!visit_) {
        visit_ = Visit{.start = wallTime_};
        expect("Logger::log(Cursor entered enabled corner " + pointerCorner + ")");
    }
    if (!visit_->hasFired && wallTime_ - visit_->start >= 300ms) {
        visit_->hasFired = true;
        fire();
    }
}

void Model::fire() {
    expect("Logger::log(Dwell time reached, revealing desktop)");
    expect("isProcessTrusted()");
    if (isTrusted) {
        expect("setAttributeValue(Inbox, AXMinimized, true)");
        spend(minimizingTakes);
    } else {
        expect("isProcessTrustedWithOptions(prompt)");
    }
}

void Model::startKeepAwake(Time duration) {
    stopKeepAwake();
    expect("createPowerAssertion(NoDisplaySleepAssertion, 255, Quellbar Keep Awake)");
    if (refusesAssertions) {
        return;
    }
    ++lastAssertion_;
    end_ = duration == forever ? forever : wallTime_ + duration;
    turnOn(tick_);
    expect("Timer::repeatingTimer(1000 ms)");
    report();
}

void Model::stopKeepAwake() {
    if (end_) {
        expect("releasePowerAssertion(" + std::to_string(lastAssertion_) + ")");
        notReleased_ += refusesReleases ? 1 : 0;
    }
    end_.reset();
    turnOff(tick_);
    report();
}

void Model::adjustKeepAwake(Time by) {
    if (!end_) {
        return;
    }
    const Time newEnd = *end_ == forever ? forever : *end_ + by;
    if (newEnd <= wallTime_) {
        stopKeepAwake();
        return;
    }
    end_ = newEnd;
    report();
}

void Model::tick() {
    if (*end_ > wallTime_) {
        report();
    } else {
        stopKeepAwake();
    }
}

void Model::report() {
    if (hasDelegate) {
        expect("report(" + std::string(isAwake() ? "active" : "inactive") + ", " +
               text(remaining()) + ")");
    }
}

Model::Time Model::remaining() const {
    if (!end_ || *end_ <= wallTime_) {
        return Time::zero();
    }
    return *end_ == forever ? forever : *end_ - wallTime_;
}

// The timer of the menu's row does not come to fire: it is one of the default mode, in which the
// run loop is not before the menu has closed and taken the timer with it.
void Model::openMenu() {
    isMenuOpen_ = true;
    expect("Timer::repeatingTimer(1000 ms)");
}

void Model::closeMenu() {
    expect("Timer::invalidate()");
    isMenuOpen_ = false;
}

void Model::wishForLoginItem(bool wish, bool isEnabled, const std::optional<std::string>& error) {
    expect("loginItemStatus()");
    if (wish == isEnabled) {
        return;
    }
    expect(wish ? "registerLoginItem()" : "unregisterLoginItem()");
    if (error) {
        expect("systemLog(Quellbar: failed to update login item state: " + *error + ")");
    }
}

std::vector<std::string> Model::takeCalls() {
    return std::exchange(calls_, {});
}

std::string Model::text(Time remaining) {
    return remaining == forever
               ? "without end"
               : std::to_string(std::chrono::floor<std::chrono::microseconds>(remaining).count());
}
