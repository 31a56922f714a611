#pragma once

#include "keepawake/KeepAwakeManagerDelegate.h"
#include "platform/Date.h"
#include "platform/PowerAssertions.h"
#include "platform/Timer.h"

#include <memory>
#include <optional>
#include <string>

/// Keeps the display from sleeping for a limited time. While a run is active it holds one power
/// assertion and ticks once a second; the first tick at or after the end lets go. The end is a
/// wall-clock date, so it stands while the machine sleeps and moves with the clock. No call fails:
/// where no assertion can be had, no run starts. All times are seconds.
class KeepAwakeManager : public std::enable_shared_from_this<KeepAwakeManager> {
  public:
    static KeepAwakeManager& shared();

    /// Who hears of every change.
    std::weak_ptr<KeepAwakeManagerDelegate> delegate;

    /// Ends the present run, if any, and begins one of `duration` seconds; without one, of the
    /// duration in the settings.
    void start(std::optional<double> duration = std::nullopt);

    /// Ends the run, if any. The delegate is told in either case.
    void stop();

    /// Moves the end of the present run; a run whose end would not lie ahead ends at once. Does
    /// nothing without a run.
    void adjust(double by);

    [[nodiscard]] bool isActive() const { return isActive_; }

    /// Seconds left in the present run; never negative, 0 without a run.
    [[nodiscard]] double remainingSeconds() const;

    /// A remaining time as text: minutes and seconds, from an hour on with hours ("59:59",
    /// "1:00:00"). Fractions are cut off; a number that is no 64-bit integer then is fatal.
    [[nodiscard]] static std::string formatted(double seconds);

    KeepAwakeManager(const KeepAwakeManager&) = delete;
    KeepAwakeManager& operator=(const KeepAwakeManager&) = delete;
    ~KeepAwakeManager() = default;

  private:
    KeepAwakeManager() = default;

    void scheduleTimer();
    void tick();
    void notifyDelegate() const;

    bool isActive_ = false;
    platform::PowerAssertionID assertionID_ = 0; // the last one; held only while active
    std::shared_ptr<platform::Timer> timer_;
    std::optional<platform::Date> endDate_;
};
