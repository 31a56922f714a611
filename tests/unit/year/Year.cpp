#include "unit/year/Year.h"

#include "corners/CornerHoverMonitor.h"
#include "platform/simulated/Desktop.h"
#include "settings/LoginItemManager.h"
#include "settings/Preferences.h"
#include "unit/support/Installation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

using namespace std::chrono_literals;
using namespace std::string_literals;
using simulated::desktop;

namespace {

constexpr auto day = std::chrono::hours(24);
constexpr int actionsADay = 80;

/// All moments of the year are whole numbers of these, and of polls of 80 ms: then no two of them
/// lie so near to each other that the program's rounding could mistake their order.
constexpr std::chrono::nanoseconds beat = 1s / 64;

KeepAwakeManager& keepAwake() {
    return KeepAwakeManager::shared();
}

double seconds(Model::Time duration) {
    return duration == Model::forever ? std::numeric_limits<double>::infinity()
                                      : std::chrono::duration<double>(duration).count();
}

std::string text(Model::Time duration) {
    return duration == Model::forever ? "for ever" : std::to_string(seconds(duration)) + " s";
}

std::vector<std::string> callsOfTheProgram() {
    return desktop().calls.of({"report", "createPowerAssertion", "releasePowerAssertion",
                               "Timer::repeatingTimer", "Timer::invalidate", "stringArrayForKey",
                               "Logger::log", "isProcessTrusted", "isProcessTrustedWithOptions",
                               "setAttributeValue", "loginItemStatus", "registerLoginItem",
                               "unregisterLoginItem", "systemLog"});
}

} // namespace

void YearlyObserver::keepAwakeDidChangeState(bool active, double remaining) {
    EXPECT_GE(remaining, 0);
    EXPECT_TRUE(active || remaining == 0);
    const auto microseconds =
        std::isinf(remaining) ? "without end"s : std::to_string(std::llround(remaining * 1e6));
    desktop().calls.record("report", {active ? "active" : "inactive", microseconds});
}

struct Year::Action {
    int weight;
    void (Year::*take)();
};

Year::Year(std::uint64_t seed) : dice_(seed) {
    installQuellbar();
    desktop().workspace.launch("Mail").openWindow("Inbox");
    platform::Application::shared().setDelegate(&delegate_);
    desktop().application.launch();
    keepAwake().delegate = observer_; // in place of the menu, which is told nothing this year
    desktop().calls.clear();
    model_.startCorners();
    model_.takeCalls();
}

void Year::liveThroughADay() {
    story_.clear();
    today_ = Time::zero();
    for (int action = 0; action < actionsADay && !testing::Test::HasFailure(); ++action) {
        act();
        check();
    }
    setClockBy(-clockError_);
    sleep(std::max(day - today_, Time::zero()));
    check();
}

void Year::end() {
    desktop().application.quit();
    model_.stopCorners();
    model_.stopKeepAwake();
    check();
}

std::string Year::story() const {
    return std::accumulate(story_.begin(), story_.end(), "today:"s,
                           [](const std::string& text, const std::string& sentence) {
                               return text + "\n  " + sentence;
                           });
}

void Year::act() {
    static const std::vector<Action> actions{{300, &Year::letTimePass},
                                             {100, &Year::restForAWhile},
                                             {160, &Year::movePointer},
                                             {20, &Year::changeScreens},
                                             {40, &Year::chooseCorners},
                                             {20, &Year::chooseDuration},
                                             {10, &Year::loseOrFindTheSettings},
                                             {40, &Year::startWithADuration},
                                             {30, &Year::startWithTheDefault},
                                             {30, &Year::stop},
                                             {70, &Year::adjust},
                                             {40, &Year::misplaceTheClock},
                                             {30, &Year::nap},
                                             {30, &Year::openOrCloseAMenu},
                                             {20, &Year::stopOrStartTheCorners},
                                             {20, &Year::wishForALoginItem},
                                             {10, &Year::grantOrTakeTrust},
                                             {10, &Year::refuseOrGrantAssertions},
                                             {10, &Year::refuseOrGrantReleases},
                                             {10, &Year::slowDownOrSpeedUp},
                                             {10, &Year::loseOrFindTheDelegate},
                                             {1, &Year::keepAwakeForHours}};
    static const int total =
        std::accumulate(actions.begin(), actions.end(), 0,
                        [](int sum, const Action& action) { return sum + action.weight; });
    int chosen = below(total);
    for (const Action& action : actions) {
        chosen -= action.weight;
        if (chosen < 0) {
            (this->*action.take)();
            return;
        }
    }
}

void Year::check() {
    const auto& loop = desktop().runLoop;
    EXPECT_EQ(callsOfTheProgram(), model_.takeCalls());
    EXPECT_EQ(desktop().clock.uptime(), model_.uptime());
    EXPECT_EQ(desktop().powerAssertions.held().size(), model_.heldAssertions());
    EXPECT_EQ(keepAwake().isActive(), model_.isAwake());
    EXPECT_EQ(loop.timerCount(platform::RunLoopMode::defaultMode),
              (model_.isAwake() ? 1U : 0U) + (model_.isMenuOpen() ? 1U : 0U));
    EXPECT_EQ(loop.timerCount(platform::RunLoopMode::commonModes), model_.isPolling() ? 1U : 0U);
    const double remaining = keepAwake().remainingSeconds();
    if (std::isinf(remaining)) {
        EXPECT_EQ(model_.remaining(), Model::forever);
    } else {
        EXPECT_NEAR(remaining, seconds(model_.remaining()), 1e-6);
    }
    desktop().calls.clear();
    desktop().log = {};
}

void Year::tell(const std::string& sentence) {
    story_.push_back(sentence);
}

int Year::below(int limit) {
    return static_cast<int>(dice_() % static_cast<std::uint64_t>(limit));
}

void Year::pass(Time duration) {
    tell(text(duration) + " pass");
    const Time before = desktop().clock.uptime();
    desktop().runLoop.run(duration);
    model_.pass(duration);
    today_ += desktop().clock.uptime() - before;
}

void Year::letTimePass() {
    pass(below(128) * beat);
}

void Year::restForAWhile() {
    pass(below(10 * 64) * beat);
}

void Year::sleep(Time duration) {
    tell("the machine sleeps for " + text(duration));
    desktop().clock.sleep(duration);
    model_.sleep(duration);
    today_ += duration;
}

void Year::nap() {
    sleep(pick<Time>({1s, 5s, 60s, 600s, 1800s}));
}

void Year::setClockBy(Time duration) {
    tell("the clock is set by " + text(duration));
    desktop().clock.setWallClockBy(duration);
    model_.setClockBy(duration);
    clockError_ += duration;
}

void Year::misplaceTheClock() {
    setClockBy(pick<Time>({-1h, -60s, -1s, 1s, 10s, 60s, 1h, -clockError_}));
}

void Year::movePointer() {
    const Place& place = pick(arrangement_->places);
    tell("the pointer moves into " + (place.corner.empty() ? "no corner" : place.corner));
    desktop().screens.pointer = place.point;
    model_.pointerCorner = place.corner;
}

void Year::changeScreens() {
    arrangement_ =
        &arrangements()[static_cast<std::size_t>(below(static_cast<int>(arrangements().size())))];
    tell(std::to_string(arrangement_->screens.size()) + " screens");
    desktop().screens.screens = arrangement_->screens;
    movePointer();
}

void Year::chooseCorners() {
    corners_.clear();
    for (const auto* const corner : {"topLeft", "topRight", "bottomLeft", "bottomRight"}) {
        if (flip()) {
            corners_.emplace_back(corner);
        }
    }
    tell(std::to_string(corners_.size()) + " corners are enabled");
    platform::StringArray stored(corners_.rbegin(), corners_.rend());
    stored.emplace_back("middle");
    desktop().userDefaults.stored["hotCorners"] = stored;
    tellModelOfTheSettings();
}

void Year::chooseDuration() {
    const auto [value, duration] =
        pick<std::pair<platform::DefaultsValue, Time>>({{7200.0, 7200s},
                                                        {std::int64_t{1800}, 1800s},
                                                        {2.5, 2500ms},
                                                        {"90 minutes"s, 90s},
                                                        {"soon"s, 0s},
                                                        {true, 1s},
                                                        {platform::StringArray{"7200"}, 0s},
                                                        {-60.0, -60s},
                                                        {"1e999"s, Model::forever}});
    tell("the default duration is " + text(duration));
    desktop().userDefaults.stored[Preferences::keepAwakeDurationSecondsKey] = value;
    duration_ = duration;
    tellModelOfTheSettings();
}

void Year::loseOrFindTheSettings() {
    bool& isReadable = desktop().userDefaults.isReadable;
    isReadable = !isReadable;
    tell(isReadable ? "the settings are there again" : "the settings cannot be read");
    tellModelOfTheSettings();
}

void Year::tellModelOfTheSettings() {
    const bool isReadable = desktop().userDefaults.isReadable;
    model_.enabledCorners = isReadable ? corners_ : std::vector{"bottomRight"s};
    model_.defaultDuration = isReadable ? duration_ : 2h;
}

void Year::startWithADuration() {
    const Time duration = pick<Time>({1s, 2s, 5s, 30s, 600s, 7200s, 2500ms, 250ms, 0s, -5s});
    tell("keep awake starts for " + text(duration));
    keepAwake().start(seconds(duration));
    model_.startKeepAwake(duration);
}

void Year::startWithTheDefault() {
    tell("keep awake starts");
    keepAwake().start();
    model_.startKeepAwake(model_.defaultDuration);
}

void Year::stop() {
    tell("keep awake stops");
    keepAwake().stop();
    model_.stopKeepAwake();
}

void Year::adjust() {
    const Time by = pick<Time>({1800s, -1800s, 30s, -30s, 5s, -5s, 1s, -1s, 500ms, -500ms, 0s});
    tell("keep awake is adjusted by " + text(by));
    keepAwake().adjust(seconds(by));
    model_.adjustKeepAwake(by);
}

void Year::openOrCloseAMenu() {
    const auto& item = desktop().statusBar.item();
    if (model_.isMenuOpen()) {
        tell("the menu closes");
        item.menu().dismiss();
        model_.closeMenu();
    } else {
        tell("the menu opens");
        item.openMenu();
        model_.openMenu();
    }
}

void Year::stopOrStartTheCorners() {
    const bool starts = flip() || !model_.isPolling();
    tell(starts ? "the corners start" : "the corners stop");
    CornerHoverMonitor& monitor = CornerHoverMonitor::shared();
    starts ? monitor.start() : monitor.stop();
    starts ? model_.startCorners() : model_.stopCorners();
}

void Year::wishForALoginItem() {
    using Status = platform::LoginItemStatus;
    auto& item = desktop().loginItem;
    item.status = pick<Status>(
        {Status::notRegistered, Status::enabled, Status::requiresApproval, Status::notFound});
    const auto error = flip() ? std::optional("100% refused"s) : std::nullopt;
    item.registerError = item.unregisterError = error;
    const bool wish = flip();
    tell("a login item is wished for, or not");
    model_.wishForLoginItem(wish, item.status == Status::enabled, error);
    LoginItemManager::setEnabled(wish);
}

void Year::grantOrTakeTrust() {
    bool& isTrusted = model_.isTrusted;
    isTrusted = !isTrusted;
    tell(isTrusted ? "trust is granted" : "trust is taken");
    desktop().accessibility.isTrusted = isTrusted;
}

void Year::refuseOrGrantAssertions() {
    bool& refuses = model_.refusesAssertions;
    refuses = !refuses;
    tell(refuses ? "assertions are refused" : "assertions are granted");
    desktop().powerAssertions.createStatus =
        refuses ? platform::kIOReturnError : platform::kIOReturnSuccess;
}

void Year::refuseOrGrantReleases() {
    bool& refuses = model_.refusesReleases;
    refuses = !refuses;
    tell(refuses ? "releases are refused" : "releases are granted");
    desktop().powerAssertions.releaseStatus =
        refuses ? platform::kIOReturnError : platform::kIOReturnSuccess;
}

// Mail is asked for its windows, and then to minimize its one.
void Year::slowDownOrSpeedUp() {
    const Time answersAfter = pick<Time>({0s, 1s, 3s});
    tell("each answer of Mail takes " + text(answersAfter));
    model_.minimizingTakes = 2 * answersAfter;
    for (const auto* const application : desktop().workspace.running()) {
        if (application->name == "Mail") {
            desktop().workspace.find(application->processIdentifier)->answersAfter = answersAfter;
        }
    }
}

void Year::loseOrFindTheDelegate() {
    bool& hasDelegate = model_.hasDelegate;
    hasDelegate = !hasDelegate;
    tell(hasDelegate ? "somebody listens" : "nobody listens");
    observer_ = hasDelegate ? std::make_shared<YearlyObserver>() : nullptr;
    keepAwake().delegate = observer_;
}

// Without the corners: their polls of hours would take most of the time of the test.
void Year::keepAwakeForHours() {
    tell("keep awake runs for two hours, the corners are off");
    CornerHoverMonitor::shared().stop();
    model_.stopCorners();
    keepAwake().start(7200);
    model_.startKeepAwake(7200s);
    pass(2h + below(64) * beat);
}
