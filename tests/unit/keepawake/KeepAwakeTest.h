#pragma once

#include "keepawake/KeepAwakeManager.h"
#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

#include <vector>

/// One report to the delegate.
struct Report {
    bool isActive = false;
    double remaining = 0;

    bool operator==(const Report&) const = default;
};

void PrintTo(const Report& report, std::ostream* stream);

/// The report of a run that has so many seconds left.
constexpr Report running(double remaining) {
    return {true, remaining};
}
constexpr Report inactive{false, 0};

/// Listens as the menu would. Each report is noted among the desktop's calls too, where its place
/// in the order of steps shows.
class Observer final : public KeepAwakeManagerDelegate {
  public:
    void keepAwakeDidChangeState(bool active, double remaining) override;

    std::vector<Report> reports;
};

/// The manager on a desktop whose wall clock begins at the reference date, so that the times
/// between dates are exact. The settings are registered already.
class KeepAwakeTest : public testing::Test {
  protected:
    KeepAwakeTest();

    /// Lets time pass on a running machine.
    static void pass(simulated::Clock::Duration duration);

    /// Forgets the calls and reports so far.
    void forget();

    /// The calls since, reports among them.
    static const std::vector<std::string>& calls() { return simulated::desktop().calls.all(); }
    [[nodiscard]] const std::vector<Report>& reports() const { return observer->reports; }

    /// Begins a run and forgets how.
    void startAndForget(double duration);

    static bool displayStaysAwake();

    KeepAwakeManager& manager = KeepAwakeManager::shared();
    std::shared_ptr<Observer> observer = std::make_shared<Observer>();
};
