#include "keepawake/KeepAwakeManager.h"

#include "settings/CheckedInteger.h"
#include "settings/Preferences.h"

#include <array>
#include <cinttypes>
#include <cstdio>

using namespace std::chrono_literals;

namespace {

double defaultDuration() {
    return Preferences::shared().defaults.doubleForKey(Preferences::keepAwakeDurationSecondsKey);
}

platform::CreatedPowerAssertion createDisplaySleepAssertion() {
    return platform::createPowerAssertion("NoDisplaySleepAssertion",
                                          platform::kIOPMAssertionLevelOn, "Quellbar Keep Awake");
}

} // namespace

KeepAwakeManager& KeepAwakeManager::shared() {
    // Never destroyed; shared, so that the timer can hold it weakly.
    static const auto* const instance = new std::shared_ptr<KeepAwakeManager>(new KeepAwakeManager);
    return **instance;
}

// The stop is unconditional: a restart is always reported as inactive first.
void KeepAwakeManager::start(std::optional<double> duration) {
    stop();
    const double seconds = duration ? *duration : defaultDuration();
    const auto [status, id] = createDisplaySleepAssertion();
    if (status != platform::kIOReturnSuccess) {
        return;
    }
    assertionID_ = id;
    isActive_ = true;
    endDate_ = platform::Date::now() + seconds;
    scheduleTimer();
    notifyDelegate();
}

void KeepAwakeManager::scheduleTimer() {
    timer_ = platform::Timer::scheduledRepeatingTimer(1.0s, [weak = weak_from_this()] {
        if (const auto manager = weak.lock()) {
            manager->tick();
        }
    });
}

void KeepAwakeManager::tick() {
    if (!isActive_) {
        return;
    }
    // An end that has passed, or is no date at all, ends the run.
    if (endDate_ && *endDate_ - platform::Date::now() > 0) {
        notifyDelegate();
    } else {
        stop();
    }
}

void KeepAwakeManager::stop() {
    if (isActive_) {
        platform::releasePowerAssertion(assertionID_);
    }
    isActive_ = false;
    endDate_.reset();
    if (timer_) {
        timer_->invalidate();
        timer_.reset();
    }
    notifyDelegate();
}

// The assertion and the timer are left as they are: only the end moves, without limit or rounding.
void KeepAwakeManager::adjust(double by) {
    if (!isActive_ || !endDate_) {
        return;
    }
    const platform::Date newEnd = *endDate_ + by;
    if (newEnd <= platform::Date::now()) {
        stop();
        return;
    }
    endDate_ = newEnd;
    notifyDelegate();
}

double KeepAwakeManager::remainingSeconds() const {
    if (!endDate_) {
        return 0;
    }
    const double remaining = *endDate_ - platform::Date::now();
    return remaining > 0 ? remaining : 0; // 0 also where it is not a number
}

void KeepAwakeManager::notifyDelegate() const {
    if (const auto observer = delegate.lock()) {
        observer->keepAwakeDidChangeState(isActive_, remainingSeconds());
    }
}

// The remainders keep the sign of the time. A negative one, which the manager never makes, is not
// guarded against: -5 reads "0:-5".
std::string KeepAwakeManager::formatted(double seconds) {
    const std::int64_t total = checked::truncated(seconds);
    const std::int64_t minutes = total % 3600 / 60;
    std::array<char, 64> text{};
    if (total < 3600) {
        std::snprintf(text.data(), text.size(), "%" PRId64 ":%02" PRId64, minutes, total % 60);
    } else {
        std::snprintf(text.data(), text.size(), "%" PRId64 ":%02" PRId64 ":%02" PRId64,
                      total / 3600, minutes, total % 60);
    }
    return text.data();
}
