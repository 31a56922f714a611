// The keys: which press is the shortcut, whose it is, and until when.
#include "tests/desktop/Session.h"
#include "tests/desktop/support/KeyGrabs.h"
#include "tests/desktop/support/MinimizeRequests.h"

#include <gtest/gtest.h>

#include <csignal>

namespace {

using namespace desktop;

const Chord superAltShiftM{.modifiers = {key::leftSuper, key::leftAlt, key::leftShift},
                           .key = key::m};
const Chord controlShiftK{.modifiers = {key::leftControl, key::leftShift}, .key = key::k};

class Shortcut : public testing::Test {
  protected:
    void setKeymap(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), "setxkbmap");
        run(session.desktop.command(std::move(arguments)));
    }

    Session session;
};

TEST_F(Shortcut, WorksFromTheMomentLaunchingHasFinished) {
    session.launch();
    EXPECT_TRUE(session.minimizesBy(defaultShortcut));
}

TEST_F(Shortcut, WorksWithNumLockOn) {
    session.launch();
    session.keyboard.turnOn(key::numLock);
    EXPECT_TRUE(session.minimizesBy(defaultShortcut));
}

TEST_F(Shortcut, WorksWithCapsLockOn) {
    session.launch();
    session.keyboard.turnOn(key::capsLock);
    EXPECT_TRUE(session.minimizesBy(defaultShortcut));
}

TEST_F(Shortcut, WorksWithBothLocksOn) {
    session.launch();
    session.keyboard.turnOn(key::numLock);
    session.keyboard.turnOn(key::capsLock);
    EXPECT_TRUE(session.minimizesBy(defaultShortcut));
}

TEST_F(Shortcut, IsSilentWithAFurtherModifier) {
    session.launch();
    EXPECT_FALSE(session.minimizesBy(superAltShiftM));
    EXPECT_TRUE(session.minimizesBy(defaultShortcut));
}

TEST_F(Shortcut, IsSilentWithAModifierMissingOrWithAnotherKey) {
    session.launch();
    EXPECT_FALSE(session.minimizesBy({.modifiers = {key::leftSuper}, .key = key::m}));
    EXPECT_FALSE(session.minimizesBy({.modifiers = {}, .key = key::m}));
    EXPECT_FALSE(session.minimizesBy({.modifiers = {key::leftSuper, key::leftAlt}, .key = key::k}));
    EXPECT_TRUE(session.minimizesBy(defaultShortcut));
}

// While the key is down, the keyboard repeats it, here some twenty times. Each repeat that counted
// would be a pass of its own, with a request for every window.
TEST_F(Shortcut, HeldDownIsOnePress) {
    session.launch();
    const auto window = session.application.open();
    MinimizeRequests requests(session.desktop.display());
    repeatKeysFast(session.desktop);
    session.keyboard.hold(defaultShortcut, std::chrono::milliseconds{300});
    session.quellbar->settle();
    EXPECT_EQ(requests.count(window), 1U);
    session.keyboard.press(defaultShortcut);
    session.quellbar->settle();
    EXPECT_EQ(requests.count(window), 2U);
}

TEST_F(Shortcut, IsSilentWhenSettingsSaySo) {
    storeDefaults(session.desktop, R"({"shortcutsEnabled": false})");
    session.launch();
    EXPECT_FALSE(session.minimizesBy(defaultShortcut));
    EXPECT_TRUE(KeyGrabs(session.desktop.display()).isFree(defaultShortcut));
}

TEST_F(Shortcut, IsTheStoredOneWhenThereIsOne) {
    storeDefaults(session.desktop, defaultsWithShortcut(R"({"keyCode":40,"modifiers":4608})"));
    session.launch();
    EXPECT_FALSE(session.minimizesBy(defaultShortcut));
    EXPECT_TRUE(session.minimizesBy(controlShiftK));
}

TEST_F(Shortcut, CanBeAKeyWithoutModifiers) {
    storeDefaults(session.desktop, defaultsWithShortcut(R"({"keyCode":0,"modifiers":0})"));
    session.launch();
    EXPECT_TRUE(session.minimizesBy({.modifiers = {}, .key = key::a}));
}

TEST_F(Shortcut, IsLeftToAnotherClientThatHoldsIt) {
    KeyGrabs other(session.desktop.display());
    ASSERT_TRUE(other.take(defaultShortcut));
    session.launch();
    EXPECT_FALSE(session.minimizesBy(defaultShortcut));
    EXPECT_EQ(other.presses(), 1);
    const Log& log = session.quellbar->log();
    log.waitFor("CornerHoverMonitor started");
    EXPECT_EQ(session.quellbar->end(), (Ended{.status = 0}));
    EXPECT_EQ(log.lines().size(), 1U);
}

TEST_F(Shortcut, IsNotTakenInPartWhenAnotherClientHoldsAPart) {
    const Chord withNumLock{.modifiers = {key::leftSuper, key::leftAlt, key::numLock},
                            .key = key::m};
    KeyGrabs other(session.desktop.display());
    ASSERT_TRUE(other.take(withNumLock));
    session.launch();
    other.giveBack(withNumLock);
    EXPECT_TRUE(other.isFree(defaultShortcut));
}

TEST_F(Shortcut, BelongsToTheProgramWhileItRuns) {
    session.launch();
    EXPECT_TRUE(KeyGrabs(session.desktop.display()).isTaken(defaultShortcut));
}

class ShortcutAfterSignal : public Shortcut, public testing::WithParamInterface<int> {};

INSTANTIATE_TEST_SUITE_P(, ShortcutAfterSignal, testing::Values(SIGTERM, SIGINT, SIGHUP, SIGKILL),
                         [](const auto& signal) {
                             return std::string(sigabbrev_np(signal.param));
                         });

TEST_P(ShortcutAfterSignal, IsFreeForOthers) {
    session.launch();
    KeyGrabs other(session.desktop.display());
    ASSERT_TRUE(other.isTaken(defaultShortcut));
    session.quellbar->end(GetParam());
    waitUntil([&] { return other.isFree(defaultShortcut); }, "the server to free the keys");
    EXPECT_TRUE(other.take(defaultShortcut));
}

TEST_F(Shortcut, WorksInTheSecondLayoutOfTheKeyboard) {
    setKeymap({"us,ru", "-option", "grp:caps_toggle"});
    session.launch();
    session.keyboard.turnOn(key::capsLock); // here the key that changes to the other layout
    EXPECT_TRUE(session.minimizesBy(defaultShortcut));
}

TEST_F(Shortcut, FollowsAModifierThatMoves) {
    session.launch();
    KeyGrabs other(session.desktop.display());
    run(session.desktop.command({"xmodmap", "-e", "clear mod4", "-e", "add mod3 = Super_L"}));
    waitUntil([&] { return other.isTaken(defaultShortcut); }, "the shortcut with another modifier");
    EXPECT_TRUE(session.minimizesBy(defaultShortcut));
}

TEST_F(Shortcut, WorksAgainWhenAnotherClientLetsGoOfTheKeyboard) {
    session.launch();
    KeyGrabs menu(session.desktop.display());
    menu.takeKeyboard();
    session.keyboard.press(defaultShortcut);
    menu.giveBackKeyboard();
    EXPECT_TRUE(session.minimizesBy(defaultShortcut));
}

class ShortcutOnAnotherKeymap : public Shortcut,
                                public testing::WithParamInterface<std::vector<std::string>> {};

INSTANTIATE_TEST_SUITE_P(
    , ShortcutOnAnotherKeymap,
    testing::Values(std::vector<std::string>{"de"}, std::vector<std::string>{"us,ru"},
                    std::vector<std::string>{"-option", "altwin:swap_alt_win"},
                    std::vector<std::string>{"fr", "-option", "caps:swapescape"}),
    [](const auto& keymap) { return std::to_string(keymap.index); });

TEST_P(ShortcutOnAnotherKeymap, WorksWhenTheMapChangesWhileItIsRegistered) {
    session.launch();
    setKeymap(GetParam());
    EXPECT_TRUE(session.minimizesBy(defaultShortcut));
}

TEST_P(ShortcutOnAnotherKeymap, WorksWhenTheMapWasSetBefore) {
    setKeymap(GetParam());
    session.launch();
    EXPECT_TRUE(session.minimizesBy(defaultShortcut));
}

/// Stored shortcuts that are none: each is answered by the default one.
class UnusableShortcut : public Shortcut, public testing::WithParamInterface<std::string> {};

INSTANTIATE_TEST_SUITE_P(
    , UnusableShortcut,
    testing::Values(
        R"({"minimizeShortcut": "{\"keyCode\":40,\"modifiers\":4608}"})",
        R"({"minimizeShortcut": 40})", R"({"minimizeShortcut": null})",
        R"({"minimizeShortcut": ["a"]})", R"({"minimizeShortcut": {"keyCode":40,"modifiers":0}})",
        R"({"minimizeShortcut": {"data": "not base64!"}})", R"({"minimizeShortcut": {"data": 1}})",
        defaultsWithShortcut(""), defaultsWithShortcut("{"), defaultsWithShortcut("[]"),
        defaultsWithShortcut(R"({"keyCode":40})"), defaultsWithShortcut(R"({"modifiers":4608})"),
        defaultsWithShortcut(R"({"keyCode":"40","modifiers":4608})"),
        defaultsWithShortcut(R"({"keyCode":-1,"modifiers":4608})"),
        defaultsWithShortcut(R"({"keyCode":4294967296,"modifiers":4608})"),
        defaultsWithShortcut(R"({"keyCode":40.5,"modifiers":4608})"),
        defaultsWithShortcut(R"({"keyCode":40,"modifiers":null})")),
    [](const auto& defaults) { return std::to_string(defaults.index); });

TEST_P(UnusableShortcut, FallsBackToTheDefault) {
    storeDefaults(session.desktop, GetParam());
    session.launch();
    EXPECT_FALSE(session.minimizesBy(controlShiftK));
    EXPECT_TRUE(session.minimizesBy(defaultShortcut));
}

} // namespace
