// How long it takes from a trigger, and from a key press, until the last window is minimized: this
// program, the limit that the window manager sets, and what people use today, in turn in one run.
// Prints Markdown tables.

#include "Contestants.h"
#include "HiddenWatch.h"
#include "Statistics.h"
#include "tests/desktop/support/Deadline.h"
#include "tests/desktop/support/Quellbar.h"
#include "tests/desktop/support/TestWindows.h"
#include "tests/desktop/support/Windows.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <optional>
#include <thread>

namespace {

using bench::Moment;
using desktop::VirtualDesktop;
using desktop::WindowManager;

/// Milliseconds, by contestant, one a round.
using Results = std::map<std::string, std::vector<double>>;

/// Starts a pass in some way; answers when it began.
using Start = std::function<Moment()>;

/// Windows to be minimized, and brought back after each pass.
class Stage {
  public:
    Stage(const VirtualDesktop& desktop, int count)
        : program_(desktop), windows_(desktop.display()), ids_(program_.open(count)),
          watch_(desktop.display(), ids_) {}

    double millisecondsOf(const Start& start) {
        watch_.reset();
        const Moment begin = start();
        const std::chrono::duration<double, std::milli> taken = watch_.waitForLast() - begin;
        bringBack();
        return taken.count();
    }

    /// The same, but nothing where the start did not lead to all windows being minimized.
    std::optional<double> millisecondsIfAny(const Start& start) {
        try {
            return millisecondsOf(start);
        } catch (const desktop::TimedOut&) {
            bringBack();
            return std::nullopt;
        }
    }

  private:
    // What runs a command for each window may be behind its own work, so the desktop is given time
    // to come to rest before it is believed.
    void bringBack() {
        constexpr std::chrono::milliseconds rest{100};
        do {
            for (const xcb_window_t window : ids_) {
                windows_.restore(window);
            }
            windows_.waitUntilShown(ids_);
            windows_.settle();
            std::this_thread::sleep_for(rest);
        } while (std::ranges::any_of(
            ids_, [this](xcb_window_t window) { return windows_.isHidden(window); }));
    }

    desktop::TestWindows program_;
    desktop::Windows windows_;
    std::vector<xcb_window_t> ids_;
    bench::HiddenWatch watch_;
};

void printRow(const std::string& manager, int count, const std::string& name,
              const std::vector<double>& ours, const std::vector<double>& figures) {
    const auto [lowest, median, highest] = bench::spreadOf(figures);
    std::printf("| %s | %d | %s | %.2f | %.2f | %.2f | %zu | %.2f |\n", manager.c_str(), count,
                name.c_str(), lowest, median, highest, figures.size(),
                bench::pairedRatio(ours, figures));
    std::fflush(stdout);
}

void printHead() {
    std::printf("| window manager | windows | from trigger to last hidden | min ms | median ms "
                "| max ms | rounds | Quellbar ÷ this |\n|---|---|---|---|---|---|---|---|\n");
}

constexpr auto quellbarRow = "Quellbar";
constexpr auto limitRow = "limit: bare xcb, one list, all messages in one go";
constexpr auto shellRow = "`wmctrl -l` and `xdotool windowminimize`";

std::size_t measureTriggers(const VirtualDesktop& desktop, const std::string& manager, int count,
                            int rounds) {
    Stage stage(desktop, count);
    bench::TriggeredProgram engine(desktop, {bench::engineProgram()});
    bench::TriggeredProgram limit(desktop, {bench::limitProgram(), "255", "0"});
    constexpr int shellRounds = 3; // seconds each with many windows
    Results results;
    for (int round = -1; round < rounds; ++round) {
        const double ours = stage.millisecondsOf([&] { return engine.trigger(); });
        const double theirs = stage.millisecondsOf([&] { return limit.trigger(); });
        if (round < 0) {
            continue; // the first round warms everything up
        }
        results[quellbarRow].push_back(ours);
        results[limitRow].push_back(theirs);
        if (round < shellRounds) {
            results[shellRow].push_back(stage.millisecondsOf([&] {
                return bench::runCommand(desktop, {"sh", "-c", bench::shellLoop});
            }));
        }
    }
    for (const auto* const name : {quellbarRow, limitRow, shellRow}) {
        printRow(manager, count, name, results[quellbarRow], results[name]);
    }
    return engine.roundTrips();
}

Start pressing(desktop::Keyboard& keyboard, const desktop::Chord& chord) {
    return [&keyboard, &chord] {
        const auto begin = std::chrono::steady_clock::now();
        keyboard.press(chord);
        return begin;
    };
}

void measureKeys(const VirtualDesktop& desktop, const std::string& manager, int rounds) {
    constexpr int count = 10;
    // Super (Mod4) and Alt (Mod1) with K, in no state of the lock keys but off.
    static const desktop::Chord grabbedInProcess{{desktop::key::leftSuper, desktop::key::leftAlt},
                                                 desktop::key::k};
    Stage stage(desktop, count);
    const desktop::Quellbar quellbar(desktop);
    const bench::TriggeredProgram grab(
        desktop, {bench::limitProgram(), std::to_string(desktop::key::k), "0x48"});
    const bench::HotKeyDaemon daemon(desktop);
    desktop::Keyboard keyboard(desktop.display());
    const std::vector<std::pair<std::string, desktop::Chord>> contestants{
        {quellbarRow, desktop::defaultShortcut},
        {"limit: a bare grab in the same process", grabbedInProcess},
        {"sxhkd running the bare xcb program", bench::HotKeyDaemon::runsLimit},
        {"sxhkd running `wmctrl` and `xdotool`", bench::HotKeyDaemon::runsShellLoop}};
    Results results;
    for (int round = -1; round < rounds; ++round) {
        for (const auto& [name, chord] : contestants) {
            const auto taken = stage.millisecondsIfAny(pressing(keyboard, chord));
            if (round >= 0 && taken) {
                results[name].push_back(*taken);
            }
        }
    }
    for (const auto& [name, chord] : contestants) {
        printRow(manager, count, name + ", from the key press", results[quellbarRow],
                 results[name]);
    }
}

void measureManager(WindowManager manager) {
    const std::map<int, int> roundsByCount{{10, 41}, {100, 21}, {500, 9}};
    std::map<int, std::size_t> roundTrips;
    for (const auto& [count, rounds] : roundsByCount) {
        const VirtualDesktop desktop(manager);
        roundTrips[count] = measureTriggers(desktop, name(manager), count, rounds);
    }
    const VirtualDesktop desktop(manager);
    measureKeys(desktop, name(manager), roundsByCount.at(10));
    for (const auto& [count, trips] : roundTrips) {
        std::fprintf(stderr, "%s, %d windows: %zu X round trips a pass\n", name(manager).c_str(),
                     count, trips);
    }
}

} // namespace

int main() {
    printHead();
    measureManager(WindowManager::openbox);
    measureManager(WindowManager::xfwm4);
}
