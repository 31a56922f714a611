// Keeping the display awake, seen from the savers and services that would end it. What the
// program's menu does is done by a driver, which is the same rooms on the same host.
#include "tests/desktop/support/Conversation.h"
#include "tests/desktop/support/MessageBus.h"
#include "tests/desktop/support/Saver.h"
#include "tests/desktop/support/VirtualDesktop.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstring>
#include <optional>

namespace {

using namespace desktop;
using namespace std::chrono_literals;

constexpr auto start = "start 3600";
constexpr auto mateSaver = "org.mate.ScreenSaver";
constexpr auto matePath = "/org/mate/ScreenSaver";

bool isActive(const std::string& answer) {
    return answer.starts_with("active");
}

/// A desktop whose buses are its own.
class Awake : public testing::Test {
  protected:
    [[nodiscard]] Command command(std::vector<std::string> arguments) const {
        Command command = desktop.command(std::move(arguments));
        command.environment["DBUS_SESSION_BUS_ADDRESS"] = sessionBus.address();
        command.environment["DBUS_SYSTEM_BUS_ADDRESS"] = systemBus.address();
        return command;
    }

    void launch() { driver.emplace(command({QUELLBAR_AWAKE_DRIVER})); }

    [[nodiscard]] Conversation service(const std::string& behaviour,
                                       const std::string& name = mateSaver,
                                       const std::string& path = matePath) const {
        return Conversation(command({QUELLBAR_FAKE_INHIBITOR, name, path, behaviour}));
    }

    VirtualDesktop desktop{WindowManager::none};
    MessageBus sessionBus{desktop};
    MessageBus systemBus{desktop};
    std::optional<Conversation> driver;
};

class XSaver : public Awake {
  protected:
    void SetUp() override {
        launch();
        saver.startAfter(2s);
    }

    /// Starts a run and has the time of the saver come and go.
    void holdOff() {
        ASSERT_TRUE(isActive(driver->ask(start)));
        saver.waitUntilIdleFor(4s);
        ASSERT_FALSE(saver.isShowing());
    }

    Saver saver{desktop.display()};
};

TEST_F(XSaver, StartsWithoutARun) {
    saver.waitUntilShowing();
}

TEST_F(XSaver, DoesNotStartDuringARunAndStartsAfterIt) {
    holdOff();
    EXPECT_FALSE(isActive(driver->ask("stop")));
    saver.waitUntilShowing();
}

TEST_F(XSaver, StartsAfterARunThatEndsByItself) {
    EXPECT_TRUE(isActive(driver->ask("start 1")));
    saver.waitUntilShowing();
    EXPECT_FALSE(isActive(driver->ask("state")));
}

TEST_F(XSaver, StartsAfterARunThatIsShortenedToNothing) {
    holdOff();
    EXPECT_FALSE(isActive(driver->ask("adjust -3600")));
    saver.waitUntilShowing();
}

TEST_F(XSaver, IsLetGoHoweverOftenARunWasStarted) {
    holdOff();
    EXPECT_TRUE(isActive(driver->ask(start)));
    EXPECT_TRUE(isActive(driver->ask(start)));
    EXPECT_FALSE(isActive(driver->ask("stop")));
    saver.waitUntilShowing();
}

class XSaverAfterTheEnd : public XSaver, public testing::WithParamInterface<int> {};

INSTANTIATE_TEST_SUITE_P(, XSaverAfterTheEnd, testing::Values(SIGTERM, SIGKILL),
                         [](const auto& signal) {
                             return std::string(sigabbrev_np(signal.param));
                         });

TEST_P(XSaverAfterTheEnd, OfTheProcessStarts) {
    holdOff();
    driver->process().end(GetParam());
    saver.waitUntilShowing();
}

TEST_F(Awake, TheServiceIsAskedAndLetGoByTheEndOfTheRun) {
    auto saver = service("grant");
    launch();
    EXPECT_TRUE(isActive(driver->ask(start)));
    EXPECT_EQ(saver.nextLine(), "asked quellbar Quellbar Keep Awake");
    EXPECT_EQ(saver.nextLine(), "granted 1");
    driver->ask("adjust 1800"); // which is nothing to the services
    driver->ask("stop");
    EXPECT_EQ(saver.nextLine(), "let go 1");
}

TEST_F(Awake, LeavesNothingHeldWhenItEnds) {
    auto saver = service("grant");
    launch();
    driver->ask(start);
    EXPECT_EQ(saver.nextLine(), "asked quellbar Quellbar Keep Awake");
    EXPECT_EQ(saver.nextLine(), "granted 1");
    driver->process().end(SIGTERM);
    const std::string line = saver.nextLine(); // the end may come before the grant has arrived
    EXPECT_TRUE(line == "let go 1" || line == "left 1") << line;
}

TEST_F(Awake, LeavesNothingHeldWhenItIsKilled) {
    auto saver = service("grant");
    launch();
    driver->ask(start);
    EXPECT_EQ(saver.nextLine(), "asked quellbar Quellbar Keep Awake");
    EXPECT_EQ(saver.nextLine(), "granted 1");
    driver->process().end(SIGKILL);
    EXPECT_EQ(saver.nextLine(), "left 1");
}

TEST_F(Awake, RunsAlthoughAServiceRefuses) {
    auto saver = service("refuse");
    launch();
    EXPECT_TRUE(isActive(driver->ask(start)));
    EXPECT_EQ(saver.nextLine(), "asked quellbar Quellbar Keep Awake");
    EXPECT_EQ(saver.nextLine(), "refused");
    EXPECT_TRUE(isActive(driver->ask("state")));
}

TEST_F(Awake, DoesNotWaitForAServiceThatIsSlow) {
    constexpr auto timeOutOfTheBus = 25s;
    auto saver = service("wait");
    launch();
    EXPECT_TRUE(isActive(driver->ask(start, Deadline(timeOutOfTheBus / 2))));
    EXPECT_EQ(saver.nextLine(), "asked quellbar Quellbar Keep Awake");
    EXPECT_EQ(saver.ask("answer"), "granted 1");
    driver->ask("stop");
    EXPECT_EQ(saver.nextLine(), "let go 1");
}

TEST_F(Awake, LetsGoOfWhatIsGrantedAfterTheRun) {
    auto saver = service("wait");
    launch();
    driver->ask(start);
    EXPECT_EQ(saver.nextLine(), "asked quellbar Quellbar Keep Awake");
    driver->ask("stop");
    EXPECT_EQ(saver.ask("answer"), "granted 1");
    EXPECT_EQ(saver.nextLine(), "let go 1");
}

TEST_F(Awake, AsksAServiceAgainThatDiedAndReturned) {
    launch();
    driver->ask(start);
    for (int life = 0; life < 3; ++life) {
        auto saver = service("grant");
        EXPECT_EQ(saver.nextLine(), "asked quellbar Quellbar Keep Awake");
        EXPECT_EQ(saver.nextLine(), "granted 1");
        saver.process().end(SIGKILL);
    }
    EXPECT_TRUE(isActive(driver->ask("state")));
}

TEST_F(Awake, DoesNotAskAServiceThatReturnsAfterTheRun) {
    launch();
    {
        auto saver = service("grant");
        driver->ask(start);
        EXPECT_EQ(saver.nextLine(), "asked quellbar Quellbar Keep Awake");
        EXPECT_EQ(saver.nextLine(), "granted 1");
        saver.process().end(SIGKILL);
    }
    driver->ask("stop");
    auto saver = service("grant");
    driver->ask(start); // the first that this one hears of
    EXPECT_EQ(saver.nextLine(), "asked quellbar Quellbar Keep Awake");
    EXPECT_EQ(saver.nextLine(), "granted 1");
    driver->ask("stop");
    EXPECT_EQ(saver.nextLine(), "let go 1");
}

TEST_F(Awake, HoldsADescriptorOfLogindAndClosesIt) {
    auto logind = service("grant", "org.freedesktop.login1", "/org/freedesktop/login1");
    launch();
    driver->ask(start);
    EXPECT_EQ(logind.nextLine(), "asked idle Quellbar Quellbar Keep Awake block");
    EXPECT_EQ(logind.nextLine(), "granted 1");
    driver->ask("stop");
    EXPECT_EQ(logind.nextLine(), "let go 1");
}

TEST_F(Awake, GoesOnWhenTheBusIsKilled) {
    const Saver saver(desktop.display());
    saver.startAfter(2s);
    launch();
    EXPECT_TRUE(isActive(driver->ask(start)));
    sessionBus.kill();
    systemBus.kill();
    saver.waitUntilIdleFor(4s);
    EXPECT_FALSE(saver.isShowing());
    EXPECT_TRUE(isActive(driver->ask("state")));
    EXPECT_FALSE(isActive(driver->ask("stop")));
    EXPECT_TRUE(isActive(driver->ask(start)));
    EXPECT_FALSE(isActive(driver->ask("stop")));
    saver.waitUntilShowing();
}

TEST_F(Awake, NeedsNoBus) {
    const Saver saver(desktop.display());
    saver.startAfter(2s);
    sessionBus.kill();
    systemBus.kill();
    launch();
    EXPECT_TRUE(isActive(driver->ask(start)));
    saver.waitUntilIdleFor(4s);
    EXPECT_FALSE(saver.isShowing());
}

/// MATE's screen saver, in a session whose user is away.
class MateScreenSaver : public Awake {
  protected:
    // It gives the user ten seconds of notice, and then starts or does not.
    static constexpr auto longEnough = 20s;

    void SetUp() override {
        session.emplace(command({QUELLBAR_FAKE_SESSION}));
        launch();
        saver.emplace(command({"mate-screensaver", "--no-daemon"}));
        ASSERT_EQ(session->nextLine(), "saver");
    }

    void expectToShow() { EXPECT_EQ(session->nextLine(Deadline(40s)), "showing"); }

    void expectNotToShow() {
        EXPECT_THROW(static_cast<void>(session->nextLine(Deadline(longEnough))), TimedOut);
    }

    std::optional<Conversation> session;
    std::optional<Process> saver;
};

TEST_F(MateScreenSaver, StartsWithoutARun) {
    session->say("idle");
    expectToShow();
}

TEST_F(MateScreenSaver, DoesNotStartDuringARunAndStartsAfterIt) {
    ASSERT_TRUE(isActive(driver->ask(start)));
    session->say("idle");
    expectNotToShow();
    driver->ask("stop");
    expectToShow();
}

TEST_F(MateScreenSaver, StartsAfterTheHolderWasKilled) {
    ASSERT_TRUE(isActive(driver->ask(start)));
    session->say("idle");
    expectNotToShow();
    driver->process().end(SIGKILL);
    expectToShow();
}

} // namespace
