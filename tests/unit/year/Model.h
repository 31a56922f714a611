#pragma once

#include "platform/simulated/Clock.h"

#include <optional>
#include <string>
#include <vector>

/// What the program has to do, worked out from its rules alone: in whole nanoseconds, where the
/// program counts in rounded seconds, and without a run loop. Whatever happens on the desktop is
/// told to both; then both must have done the same.
class Model {
  public:
    using Time = simulated::Clock::Duration;

    static constexpr Time forever = Time::max();

    // What the program finds.
    std::vector<std::string> enabledCorners{"bottomRight"}; // in the order of their listing
    std::string pointerCorner;                              // empty: the pointer is in none
    Time defaultDuration = std::chrono::hours(2);
    Time minimizingTakes{};
    bool isTrusted = true;
    bool refusesAssertions = false;
    bool refusesReleases = false;
    bool hasDelegate = true;

    // What happens.
    void pass(Time duration);
    void sleep(Time duration) { wallTime_ += duration; }
    void setClockBy(Time duration) { wallTime_ += duration; }
    void startCorners();
    void stopCorners();
    void startKeepAwake(Time duration);
    void stopKeepAwake();
    void adjustKeepAwake(Time by);
    void openMenu();
    void closeMenu();
    void wishForLoginItem(bool wish, bool isEnabled, const std::optional<std::string>& error);

    // What must be so now.
    [[nodiscard]] Time uptime() const { return uptime_; }
    [[nodiscard]] Time wallTime() const { return wallTime_; }
    [[nodiscard]] bool isMenuOpen() const { return isMenuOpen_; }
    [[nodiscard]] bool isPolling() const { return poll_.isOn; }
    [[nodiscard]] bool isAwake() const { return end_.has_value(); }
    [[nodiscard]] Time remaining() const;
    [[nodiscard]] std::size_t heldAssertions() const {
        return notReleased_ + (isAwake() ? 1U : 0U);
    }

    /// The calls that the program must have made since this was last asked.
    std::vector<std::string> takeCalls();

    /// How a remaining time is written in a report: in microseconds, which no rounding of the
    /// program reaches.
    static std::string text(Time remaining);

  private:
    struct Timer {
        Time interval;
        bool isOn = false;
        Time due{};
        int age = 0; // of two that are due together, the one that was added first fires first
    };
    struct Visit {
        Time start;
        bool hasFired = false;
    };

    void expect(std::string call) { calls_.push_back(std::move(call)); }
    void turnOn(Timer& timer);
    void turnOff(Timer& timer);
    Timer* nextDueBy(Time moment);
    void spend(Time duration);
    void poll();
    void fire();
    void tick();
    void report();

    Time uptime_{};
    Time wallTime_ = std::chrono::seconds(800'000'000);
    Timer poll_{.interval = std::chrono::milliseconds(80)};
    Timer tick_{.interval = std::chrono::seconds(1)};
    int timersAdded_ = 0;
    bool isMenuOpen_ = false;
    std::optional<Visit> visit_;
    std::optional<Time> end_; // on the wall clock; set while a run is active
    unsigned lastAssertion_ = 0;
    std::size_t notReleased_ = 0;
    std::vector<std::string> calls_;
};
