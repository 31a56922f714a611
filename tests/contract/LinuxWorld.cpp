#include "contract/LinuxSettings.h"
#include "contract/World.h"
#include "tests/desktop/support/KeyGrabs.h"
#include "tests/desktop/support/Keyboard.h"
#include "tests/desktop/support/TestWindows.h"
#include "tests/desktop/support/VirtualDesktop.h"
#include "tests/desktop/support/Windows.h"

#include <QCoreApplication>
#include <QTimer>

#include <array>
#include <cstdlib>
#include <map>
#include <utility>

namespace {

using contract::KeyCombination;
using desktop::Chord;
using desktop::WindowType;

// The keys that the suites press, by their macOS virtual key codes.
const std::map<std::uint32_t, xcb_keycode_t> keys{
    {0, desktop::key::a}, {31, desktop::key::o}, {45, desktop::key::n}, {46, desktop::key::m}};

constexpr std::array<std::pair<std::uint32_t, xcb_keycode_t>, 4> modifiers{{
    {0x0100, desktop::key::leftSuper},
    {0x0200, desktop::key::leftShift},
    {0x0800, desktop::key::leftAlt},
    {0x1000, desktop::key::leftControl},
}};

Chord chordOf(KeyCombination combination) {
    Chord chord{.modifiers = {}, .key = keys.at(combination.keyCode)};
    for (const auto& [bit, key] : modifiers) {
        if ((combination.modifiers & bit) != 0) {
            chord.modifiers.push_back(key);
        }
    }
    return chord;
}

WindowType typeFor(platform::ActivationPolicy policy) {
    return policy == platform::ActivationPolicy::regular ? WindowType::normal : WindowType::dock;
}

// This process is the program under test: it has to find the world's display and folders.
void adopt(const desktop::Environment& environment) {
    for (const auto& [name, value] : environment) {
        ::setenv(name.c_str(), value.c_str(), 1);
    }
}

/// A virtual desktop around this process, with real windows of other processes on it.
class LinuxWorld final : public contract::World {
  public:
    LinuxWorld() { adopt(desktop_.environment()); }

    platform::ProcessIdentifier start(platform::ActivationPolicy policy,
                                      const std::vector<std::string>& windows) override {
        auto program = std::make_unique<desktop::TestWindows>(desktop_);
        const platform::ProcessIdentifier pid = program->process().pid();
        for (const std::string& title : windows) {
            const auto window = program->open({.title = title, .type = typeFor(policy)});
            windows_[title] = {.id = window, .program = pid};
        }
        programs_[pid] = std::move(program);
        return pid;
    }

    void quit(platform::ProcessIdentifier program) override {
        programs_.erase(program);
        for (const auto& [title, window] : windows_) {
            if (window.program == program) {
                view_.waitUntilGone(window.id);
            }
        }
    }

    void close(const std::string& title) override {
        const Window window = windows_.at(title);
        programs_.at(window.program)->destroy({window.id});
        view_.waitUntilGone(window.id);
    }

    bool isMinimized(const std::string& title) override {
        return view_.isHidden(windows_.at(title).id);
    }

    void setTrusted(bool isTrusted) override {
        if (isTrusted) {
            desktop_.startWindowManager(desktop::WindowManager::openbox);
        } else {
            desktop_.endWindowManager();
        }
    }

    bool holdElsewhere(KeyCombination combination) override {
        return elsewhere_.take(chordOf(combination));
    }
    void releaseElsewhere(KeyCombination combination) override {
        elsewhere_.giveBack(chordOf(combination));
    }
    void press(KeyCombination combination) override { keyboard_.press(chordOf(combination)); }
    void pressLong(KeyCombination combination) override {
        desktop::repeatKeysFast(desktop_);
        keyboard_.hold(chordOf(combination), std::chrono::milliseconds{300});
    }

    void store(const std::string& key, const platform::DefaultsValue& value) override {
        settings_.store(key, value);
    }
    std::optional<platform::DefaultsValue> stored(const std::string& key) override {
        return settings_.stored(key);
    }
    void loseStore() override { settings_.lose(); }

    // A turn of the loop waits for something to happen; the timer is what happens at the latest.
    bool turnUntil(const std::function<bool()>& condition) override {
        const desktop::Deadline deadline;
        QTimer timer;
        timer.start(std::chrono::milliseconds{5});
        while (!condition()) {
            if (deadline.hasPassed()) {
                return false;
            }
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        return true;
    }

  private:
    struct Window {
        xcb_window_t id = XCB_NONE;
        platform::ProcessIdentifier program = 0;
    };

    desktop::VirtualDesktop desktop_;
    desktop::Windows view_{desktop_.display()};
    desktop::Keyboard keyboard_{desktop_.display()};
    desktop::KeyGrabs elsewhere_{desktop_.display()};
    contract::LinuxSettings settings_{desktop_.configuration() / "quellbar"};
    std::map<platform::ProcessIdentifier, std::unique_ptr<desktop::TestWindows>> programs_;
    std::map<std::string, Window> windows_;
};

} // namespace

std::unique_ptr<contract::World> contract::makeWorld() {
    return std::make_unique<LinuxWorld>();
}
