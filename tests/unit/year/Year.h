#pragma once

#include "app/AppDelegate.h"
#include "keepawake/KeepAwakeManager.h"
#include "unit/year/Model.h"
#include "unit/year/Places.h"

#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <vector>

/// Hears the program's reports, and notes them among the desktop's calls.
class YearlyObserver final : public KeepAwakeManagerDelegate {
  public:
    void keepAwakeDidChangeState(bool active, double remaining) override;
};

/// A user and a desktop that do what the dice say, to the program and to its model. After every
/// step the two are compared, and each keeps going from one day to the next.
class Year {
  public:
    explicit Year(std::uint64_t seed);

    /// Lives through one day: some minutes of use, and sleep until the day is over.
    void liveThroughADay();
    /// Quits the program, whatever it is doing.
    void end();

    /// What has happened today, for who looks for the cause of a failure.
    [[nodiscard]] std::string story() const;

  private:
    using Time = Model::Time;
    struct Action;

    void act();
    void check();
    void tell(const std::string& sentence);

    // Dice.
    int below(int limit);
    bool flip() { return below(2) == 0; }
    template <typename Value>
    Value pick(const std::vector<Value>& values) {
        return values[static_cast<std::size_t>(below(static_cast<int>(values.size())))];
    }

    // What can happen.
    void pass(Time duration);
    void letTimePass();
    void restForAWhile();
    void sleep(Time duration);
    void nap();
    void setClockBy(Time duration);
    void misplaceTheClock();
    void movePointer();
    void changeScreens();
    void chooseCorners();
    void chooseDuration();
    void loseOrFindTheSettings();
    void startWithADuration();
    void startWithTheDefault();
    void stop();
    void adjust();
    void openOrCloseAMenu();
    void stopOrStartTheCorners();
    void wishForALoginItem();
    void grantOrTakeTrust();
    void refuseOrGrantAssertions();
    void refuseOrGrantReleases();
    void slowDownOrSpeedUp();
    void loseOrFindTheDelegate();
    void keepAwakeForHours();

    void tellModelOfTheSettings();

    std::mt19937_64 dice_;
    Model model_;
    AppDelegate delegate_;
    std::shared_ptr<YearlyObserver> observer_ = std::make_shared<YearlyObserver>();
    const Arrangement* arrangement_ = &arrangements().front();
    std::vector<std::string> corners_{"bottomRight"};
    Time duration_ = std::chrono::hours(2);
    Time today_{};      // since midnight
    Time clockError_{}; // how far the user has set the wall clock wrong
    std::vector<std::string> story_;
};
