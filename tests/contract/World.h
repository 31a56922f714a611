#pragma once

#include "platform/ActivationPolicy.h"
#include "platform/Application.h"
#include "platform/Geometry.h"
#include "platform/UserDefaults.h"
#include "platform/Workspace.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What each host promises is tested once, against a world: a desktop as it is around the program,
/// with other programs, a keyboard and a store of settings. One source a host implements it, and is
/// linked with the same suites.
namespace contract {

/// A key by its macOS virtual key code, with Carbon modifier bits.
struct KeyCombination {
    std::uint32_t keyCode = 0;
    std::uint32_t modifiers = 0;
};

/// A fresh desktop of its own for each test, trusted, with nobody on it and nothing stored.
/// Whatever it brings up, it takes down when it is destroyed. Every operation comes back when it is
/// done: a window that was opened is on the screen and in the desktop's list, a program that was
/// ended is gone. A test may fork before it starts this program; the child leaves the world alone.
class World {
  public:
    World() = default;
    virtual ~World() = default;
    World(const World&) = delete;
    World& operator=(const World&) = delete;

    // Other programs. Window titles are unique in a world.

    /// Starts a program that is, by its windows, regular or accessory, and opens these windows.
    virtual platform::ProcessIdentifier start(platform::ActivationPolicy policy,
                                              const std::vector<std::string>& windows) = 0;
    virtual void quit(platform::ProcessIdentifier program) = 0;
    virtual void close(const std::string& window) = 0;
    [[nodiscard]] virtual bool isMinimized(const std::string& window) = 0;

    /// Gives or takes away what makes this program trusted: the user's permission, or the window
    /// manager.
    virtual void setTrusted(bool isTrusted) = 0;

    // The keyboard.

    /// Another client takes a combination. False when it is refused.
    [[nodiscard]] virtual bool holdElsewhere(KeyCombination combination) = 0;
    virtual void releaseElsewhere(KeyCombination combination) = 0;
    /// The user presses a combination and lets go of it.
    virtual void press(KeyCombination combination) = 0;
    /// The same, but the key is held until it has repeated several times.
    virtual void pressLong(KeyCombination combination) = 0;

    // The settings, as another program of the same user writes and finds them.

    virtual void store(const std::string& key, const platform::DefaultsValue& value) = 0;
    [[nodiscard]] virtual std::optional<platform::DefaultsValue> stored(const std::string& key) = 0;
    /// From now on nobody can read or write the settings.
    virtual void loseStore() = 0;

    // The screens and the pointer, in points of the global screen coordinates.

    /// Arranges the screens, the primary one first.
    virtual void arrangeScreens(const std::vector<platform::Rect>& frames) = 0;
    virtual void movePointer(platform::Point to) = 0;

    /// What the user's clock says, in seconds since 1 January 2001, 00:00 UTC.
    [[nodiscard]] virtual double wallTime() = 0;

    /// Whether the display would stay awake now if the user did nothing.
    [[nodiscard]] virtual bool displayStaysAwake() = 0;

    // The login item of this program.

    /// Whether the desktop would start this program if the user logged in now.
    [[nodiscard]] virtual bool startsAtLogin() = 0;
    /// The user turns a registered item off in the desktop's own settings.
    virtual void turnLoginItemOff() = 0;
    /// From now on the registration cannot be changed.
    virtual void loseLoginItems() = 0;

    /// Whether the test can see what is in the system's logs.
    [[nodiscard]] virtual bool canReadLogs() { return true; }
    /// Whether a line of one of the system's logs, written by this program, holds this text.
    [[nodiscard]] virtual bool hasLogged(const std::string& text) = 0;

    /// Turns this program's run loop until the condition holds. False when it does not come to hold
    /// within the world's patience.
    [[nodiscard]] virtual bool turnUntil(const std::function<bool()>& condition) = 0;
};

/// The world of the host that is linked.
std::unique_ptr<World> makeWorld();

/// A test in a world in which this program has not started yet.
class WorldTest : public testing::Test {
  protected:
    const std::unique_ptr<World> world_ = makeWorld();
};

/// A test of this program while it runs: the application object is there, and services answer.
class ProgramTest : public WorldTest {
  protected:
    platform::Application& application_ = platform::Application::shared();
};

} // namespace contract
