// The hot corners, under a real pointer.
#include "tests/desktop/EveryManager.h"
#include "tests/desktop/Session.h"
#include "tests/desktop/support/MinimizeRequests.h"
#include "tests/desktop/support/Monitors.h"
#include "tests/desktop/support/Pointer.h"
#include "tests/desktop/support/ProcessFigures.h"

#include <gtest/gtest.h>

#include <thread>

namespace {

using namespace desktop;
using namespace std::chrono_literals;

/// In pixels, from the top left of a screen of 1280 × 800.
struct Place {
    int x;
    int y;
};

constexpr Place topLeft{0, 0};
constexpr Place topRight{1279, 0};
constexpr Place bottomLeft{0, 799};
constexpr Place bottomRight{1279, 799};
constexpr Place middle{640, 400};

constexpr auto entry = "Cursor entered enabled corner";
constexpr auto firing = "Dwell time reached, revealing desktop";

/// A session with one window, the program, and the pointer away from all corners.
class CornerTest {
  public:
    explicit CornerTest(WindowManager manager = WindowManager::openbox)
        : session(manager), monitors(session.desktop), pointer(session.desktop.display()),
          window(session.application.open()) {
        moveTo(middle);
        session.launch();
    }

    void moveTo(Place place) { pointer.moveTo(place.x, place.y); }

    /// Returns when the program has looked at the pointer a number of times more. Each look puts it
    /// to sleep at least once, and nothing else wakes it up.
    void letPolls(std::uint64_t count) {
        session.settle();
        const pid_t program = session.quellbar->process().pid();
        constexpr std::uint64_t mostSwitchesOfOne = 3;
        const auto end = voluntarySwitches(program) + count * mostSwitchesOfOne;
        waitUntil([&] { return voluntarySwitches(program) >= end; }, "polls of the pointer");
        session.settle();
    }

    /// Whether the window is minimized by resting at a place, given much more than enough time.
    /// Leaves the place again, and the window on the screen.
    bool firesAt(Place place) {
        moveTo(place);
        letPolls(enoughToFire);
        const bool fires = session.windows.isHidden(window);
        moveAway();
        bringBack();
        return fires;
    }

    /// Has the program see the pointer away from all corners.
    void moveAway() {
        moveTo(middle);
        letPolls(2);
    }

    void bringBack() {
        session.windows.restore(window);
        session.windows.waitUntilShown(window);
    }

    [[nodiscard]] const Log& log() const { return session.quellbar->log(); }

    static constexpr std::uint64_t enoughToFire = 10;

    Session session;
    Monitors monitors;
    Pointer pointer;
    xcb_window_t window;
};

class Corner : public testing::TestWithParam<WindowManager>, public CornerTest {
  protected:
    Corner() : CornerTest(GetParam()) {}
};
INSTANTIATE_TEST_SUITE_P(, Corner, everyManager, testing::PrintToStringParamName());

TEST_P(Corner, BottomRightHidesEveryWindowOnceThePointerRestsInIt) {
    auto windows = session.application.open(4);
    windows.push_back(window);
    MinimizeRequests requests(session.desktop.display());
    moveTo(bottomRight);
    session.windows.waitUntilHidden(windows);
    session.settle();
    for (const xcb_window_t each : windows) {
        EXPECT_EQ(requests.count(each), 1U);
    }
}

TEST_P(Corner, DoesNotFireAgainWhileThePointerStays) {
    moveTo(bottomRight);
    session.windows.waitUntilHidden(window);
    bringBack();
    letPolls(3 * enoughToFire);
    EXPECT_FALSE(session.windows.isHidden(window));
}

TEST_P(Corner, FiresAgainWhenThePointerHasLeftAndReturned) {
    moveTo(bottomRight);
    session.windows.waitUntilHidden(window);
    moveAway();
    bringBack();
    moveTo(bottomRight);
    session.windows.waitUntilHidden(window);
}

TEST_P(Corner, ThatIsNotEnabledDoesNothing) {
    EXPECT_FALSE(firesAt(topLeft));
    EXPECT_FALSE(firesAt(topRight));
    EXPECT_FALSE(firesAt(bottomLeft));
    EXPECT_TRUE(firesAt(bottomRight));
}

class ShortStay : public testing::Test, public CornerTest {
  protected:
    void SetUp() override {
        if (std::filesystem::exists("/run/systemd/journal/socket")) {
            GTEST_SKIP() << "the journal of this machine takes the program's log";
        }
    }

    /// Goes into the corner for a quarter of a second, until the program has seen it there and the
    /// stay was not stretched by a busy machine.
    void stayForAQuarterOfASecond() {
        using std::chrono::steady_clock;
        for (bool isDone = false; !isDone; moveAway()) {
            const auto entries = log().count(entry);
            const auto begin = steady_clock::now();
            moveTo(bottomRight);
            std::this_thread::sleep_until(begin + 250ms);
            moveTo(middle);
            const bool wasShort = steady_clock::now() - begin < 300ms;
            isDone = wasShort && log().count(entry) > entries;
            if (!wasShort) {
                ++stretched_;
                ASSERT_LT(stretched_, 50) << "the machine is too busy for a short stay";
                letPolls(2);
                bringBack();
            }
        }
        firingsBefore_ = log().count(firing);
    }

    int stretched_ = 0;
    std::size_t firingsBefore_ = 0;
};

TEST_F(ShortStay, OfAQuarterOfASecondDoesNotFire) {
    stayForAQuarterOfASecond();
    EXPECT_FALSE(session.windows.isHidden(window));
    EXPECT_LE(firingsBefore_, static_cast<std::size_t>(stretched_));
}

TEST_F(ShortStay, IsForgottenByTheNextOne) {
    stayForAQuarterOfASecond();
    const auto entries = log().count(entry);
    moveTo(bottomRight);
    session.windows.waitUntilHidden(window);
    EXPECT_EQ(log().count(entry), entries + 1);
    EXPECT_EQ(log().count(firing), firingsBefore_ + 1);
}

TEST_F(ShortStay, AndLongOnesAreLoggedOnceEach) {
    moveTo(bottomRight);
    session.windows.waitUntilHidden(window);
    letPolls(2 * enoughToFire);
    EXPECT_EQ(log().count("Cursor entered enabled corner bottomRight"), 1U);
    EXPECT_EQ(log().count(firing), 1U);
}

class EnabledCorners : public testing::Test, public CornerTest {};

TEST_F(EnabledCorners, TakeEffectWithoutARestartAndWithoutAMovement) {
    moveTo(topLeft);
    letPolls(enoughToFire);
    ASSERT_FALSE(session.windows.isHidden(window));
    storeDefaults(session.desktop, R"({"hotCorners": ["topLeft"]})");
    session.windows.waitUntilHidden(window);
}

TEST_F(EnabledCorners, ThatAreNoneStopTheFiring) {
    storeDefaults(session.desktop, R"({"hotCorners": []})");
    EXPECT_FALSE(firesAt(bottomRight));
}

TEST_F(EnabledCorners, ThatAreAllFireEach) {
    storeDefaults(session.desktop,
                  R"({"hotCorners": ["topLeft", "topRight", "bottomLeft", "bottomRight"]})");
    EXPECT_TRUE(firesAt(topLeft));
    EXPECT_TRUE(firesAt(topRight));
    EXPECT_TRUE(firesAt(bottomLeft));
    EXPECT_TRUE(firesAt(bottomRight));
}

class DamagedCorners : public EnabledCorners, public testing::WithParamInterface<const char*> {};

INSTANTIATE_TEST_SUITE_P(, DamagedCorners,
                         testing::Values("", "{", R"({"hotCorners": 7})",
                                         R"({"hotCorners": "topLeft"})",
                                         R"({"hotCorners": [1, null, {}, "middle"]})"),
                         [](const auto& damage) { return std::to_string(damage.index); });

TEST_P(DamagedCorners, DoNotEndThePolling) {
    storeDefaults(session.desktop, GetParam());
    letPolls(enoughToFire);
    storeDefaults(session.desktop, R"({"hotCorners": ["topLeft"]})");
    EXPECT_TRUE(firesAt(topLeft));
}

// Beside each other, the second one half as high as the first.
const Monitor leftHalf{"left", {.x = 0, .y = 0, .width = 640, .height = 800}};
const Monitor rightQuarter{"right", {.x = 640, .y = 0, .width = 640, .height = 400}};
constexpr Place bottomRightOfQuarter{1279, 399};

class SeveralMonitors : public testing::Test, public CornerTest {
  protected:
    void enable(const std::string& corner) {
        storeDefaults(session.desktop, R"({"hotCorners": [")" + corner + R"("]})");
    }
};

TEST_F(SeveralMonitors, HaveCornersOfTheirOwn) {
    monitors.arrange({leftHalf, rightQuarter});
    EXPECT_TRUE(firesAt({639, 799}));
    EXPECT_TRUE(firesAt(bottomRightOfQuarter));
    EXPECT_FALSE(firesAt({600, 799}));
    EXPECT_FALSE(firesAt({1279, 380}));
}

TEST_F(SeveralMonitors, LetACornerReachAlongTheEdgeBeyondItsOwn) {
    monitors.arrange({leftHalf, {"right", {.x = 640, .y = 0, .width = 640, .height = 800}}});
    EXPECT_TRUE(firesAt({900, 799}));
    enable("bottomLeft");
    EXPECT_TRUE(firesAt(bottomLeft));
    EXPECT_FALSE(firesAt({645, 799})); // the first one's bottom right reaches here
}

TEST_F(SeveralMonitors, AreAskedFromThePrimaryOneOn) {
    monitors.arrange({{"right", {.x = 640, .y = 0, .width = 640, .height = 800}}, leftHalf});
    EXPECT_FALSE(firesAt({645, 799})); // the bottom left of the first one
    EXPECT_TRUE(firesAt({900, 799}));
    enable("bottomLeft");
    EXPECT_TRUE(firesAt({645, 799}));
    EXPECT_TRUE(firesAt({300, 799}));
}

TEST_F(SeveralMonitors, HaveCornersAlsoWhereThePointerIsOnNone) {
    monitors.arrange({leftHalf, rightQuarter});
    EXPECT_TRUE(firesAt(bottomRight));
    EXPECT_FALSE(firesAt({900, 600}));
}

TEST_F(SeveralMonitors, MayBeThree) {
    monitors.arrange({{"left", {.x = 0, .y = 200, .width = 400, .height = 400}},
                      {"middle", {.x = 400, .y = 0, .width = 400, .height = 800}},
                      {"right", {.x = 800, .y = 300, .width = 480, .height = 400}}});
    EXPECT_TRUE(firesAt({399, 599}));
    EXPECT_TRUE(firesAt({799, 799}));
    EXPECT_TRUE(firesAt({1279, 699}));  // below the first one's bottom
    EXPECT_FALSE(firesAt({1279, 550})); // above the bottom of every one
    enable("topRight");
    EXPECT_TRUE(firesAt({399, 200}));
    EXPECT_TRUE(firesAt({1279, 100})); // above the first one's top
    EXPECT_FALSE(firesAt({799, 300})); // below the top of every one
}

TEST_F(SeveralMonitors, AreNoticedWhenTheyComeGoAndMove) {
    moveTo(bottomRightOfQuarter);
    letPolls(enoughToFire);
    ASSERT_FALSE(session.windows.isHidden(window));
    monitors.arrange({leftHalf, rightQuarter});
    session.windows.waitUntilHidden(window);
    monitors.arrange({});
    bringBack();
    EXPECT_FALSE(firesAt(bottomRightOfQuarter));
    EXPECT_TRUE(firesAt(bottomRight));
    monitors.arrange({leftHalf, {"right", {.x = 640, .y = 0, .width = 640, .height = 300}}});
    EXPECT_FALSE(firesAt({1279, 280}));
    EXPECT_TRUE(firesAt({1279, 299}));
}

} // namespace
