#include "contract/LinuxAutostart.h"
#include "contract/LinuxScreens.h"
#include "contract/LinuxSettings.h"
#include "contract/World.h"
#include "tests/desktop/support/FileDescriptor.h"
#include "tests/desktop/support/KeyGrabs.h"
#include "tests/desktop/support/Keyboard.h"
#include "tests/desktop/support/Log.h"
#include "tests/desktop/support/Saver.h"
#include "tests/desktop/support/TestWindows.h"
#include "tests/desktop/support/VirtualDesktop.h"
#include "tests/desktop/support/Windows.h"

#include <QCoreApplication>
#include <QTimer>

#include <array>
#include <chrono>
#include <cstdlib>
#include <fcntl.h>
#include <map>
#include <system_error>
#include <unistd.h>
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

// Without a journal the program's log goes to standard error.
void captureStandardError(const std::filesystem::path& file) {
    const desktop::FileDescriptor log(::open(file.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600));
    if (::dup2(log.number(), STDERR_FILENO) < 0) {
        throw std::system_error(errno, std::generic_category(), file.string());
    }
}

/// A virtual desktop around this process, with real windows of other processes on it.
class LinuxWorld final : public contract::World {
  public:
    LinuxWorld() {
        adopt(desktop_.environment());
        adopt({{"XDG_CONFIG_DIRS", allUsers_}});
        captureStandardError(log_.file());
    }

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

    void arrangeScreens(const std::vector<platform::Rect>& frames) override {
        screens_.arrange(frames);
    }
    void movePointer(platform::Point to) override { screens_.movePointer(to); }

    double wallTime() override {
        using namespace std::chrono;
        const auto reference = sys_days{January / 1 / 2001};
        return duration<double>(system_clock::now() - reference).count();
    }

    bool displayStaysAwake() override {
        using namespace std::chrono_literals;
        saver_.startAfter(1s);
        saver_.waitUntilIdleFor(2s);
        return !saver_.isShowing();
    }

    bool startsAtLogin() override { return autostart_.startsThisProgram(); }
    void turnLoginItemOff() override { autostart_.turnOff(); }
    void loseLoginItems() override { autostart_.lose(); }

    bool canReadLogs() override {
        return !std::filesystem::exists("/run/systemd/journal/socket"); // which would take the log
    }
    bool hasLogged(const std::string& text) override { return log_.count(text) > 0; }

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

    desktop::VirtualDesktop desktop_{desktop::WindowManager::openbox, {1600, 1200}};
    desktop::Windows view_{desktop_.display()};
    desktop::Keyboard keyboard_{desktop_.display()};
    desktop::KeyGrabs elsewhere_{desktop_.display()};
    contract::LinuxScreens screens_{desktop_};
    desktop::Saver saver_{desktop_.display()};
    desktop::Log log_{desktop_.logs() / "program"};
    std::filesystem::path allUsers_{desktop_.home() / "xdg"};
    contract::LinuxAutostart autostart_{desktop_.configuration(), allUsers_};
    contract::LinuxSettings settings_{desktop_.configuration() / "quellbar"};
    std::map<platform::ProcessIdentifier, std::unique_ptr<desktop::TestWindows>> programs_;
    std::map<std::string, Window> windows_;
};

} // namespace

std::unique_ptr<contract::World> contract::makeWorld() {
    return std::make_unique<LinuxWorld>();
}
