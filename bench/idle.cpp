// What the program costs while nobody uses it, its corners polled as ever: beside a bare program
// that polls the pointer as often, the same in Qt, and the three tools that people use for the
// three jobs. All of a table run at the same time on the same desktop. Prints Markdown tables.
//
//   bench_idle [<seconds>]   of measuring, for each table; 30 unless told otherwise

#include "PollCost.h"
#include "tests/desktop/support/Conversation.h"
#include "tests/desktop/support/Pointer.h"
#include "tests/desktop/support/ProcessFigures.h"
#include "tests/desktop/support/Quellbar.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <list>
#include <string>
#include <thread>

namespace {

using desktop::VirtualDesktop;
using std::chrono::steady_clock;
using namespace std::chrono_literals;

struct Contestant {
    std::string name;
    std::vector<pid_t> processes;
};

struct Sample {
    double milliseconds = 0; ///< of processor time
    double switches = 0;     ///< voluntary ones
};

Sample sampleOf(const Contestant& contestant) {
    Sample sample;
    for (const pid_t process : contestant.processes) {
        const std::chrono::duration<double, std::milli> time = desktop::processorTime(process);
        sample.milliseconds += time.count();
        sample.switches += static_cast<double>(desktop::voluntarySwitches(process));
    }
    return sample;
}

double mebibytesOf(const Contestant& contestant) {
    double kibibytes = 0;
    for (const pid_t process : contestant.processes) {
        kibibytes += static_cast<double>(desktop::proportionalSetSize(process));
    }
    return kibibytes / 1024;
}

/// What goes on during a measurement, for so long.
using Scene = std::function<void(std::chrono::seconds time)>;

void measure(const std::vector<Contestant>& contestants, const Scene& scene,
             std::chrono::seconds time) {
    std::this_thread::sleep_for(2s); // for everyone to have finished starting
    std::vector<Sample> before;
    for (const Contestant& contestant : contestants) {
        before.push_back(sampleOf(contestant));
    }
    scene(time);
    for (std::size_t i = 0; i < contestants.size(); ++i) {
        const Sample after = sampleOf(contestants[i]);
        std::printf("| %s | %.1f | %.1f | %.1f |\n", contestants[i].name.c_str(),
                    after.milliseconds - before[i].milliseconds,
                    (after.switches - before[i].switches) / static_cast<double>(time.count()),
                    mebibytesOf(contestants[i]));
    }
    std::printf("\n");
    std::fflush(stdout);
}

void printHead(const std::string& scene, std::chrono::seconds time) {
    std::printf("| %s | CPU ms in %lld s | voluntary switches a second | PSS MiB |\n"
                "|---|---|---|---|\n",
                scene.c_str(), static_cast<long long>(time.count()));
}

void measureAtRest(std::chrono::seconds time) {
    const VirtualDesktop desktop;
    desktop::Pointer(desktop.display()).moveTo(640, 400);
    desktop::Quellbar quellbar(desktop);
    desktop::Conversation xcb(desktop.command({QUELLBAR_BENCH_XCB_POLLER}));
    desktop::Conversation qt(desktop.command({QUELLBAR_BENCH_QT_POLLER}));
    printHead("pointer at rest", time);
    measure(
        {{"Quellbar", {quellbar.process().pid()}},
         {"a bare xcb program", {xcb.process().pid()}},
         {"a bare Qt program", {qt.process().pid()}}},
        [](std::chrono::seconds length) { std::this_thread::sleep_for(length); }, time);
}

bool isInstalled(const std::string& program) {
    return std::system(("command -v " + program + " >/dev/null").c_str()) == 0;
}

/// The tools that together do the three jobs, as far as they are installed.
class ThreeTools {
  public:
    explicit ThreeTools(const VirtualDesktop& desktop) {
        std::ofstream(desktop.configuration() / "sxhkdrc") << "super + alt + m\n  true\n";
        const auto keys = desktop.configuration() / "sxhkdrc";
        start(desktop, {"xdotool", "behave_screen_edge", "bottom-right", "exec", "true"});
        start(desktop, {"sxhkd", "-c", keys.string()});
        start(desktop, {"caffeine"});
        contestant_.name += missing_;
    }

    [[nodiscard]] const Contestant& contestant() const { return contestant_; }

  private:
    void start(const VirtualDesktop& desktop, const std::vector<std::string>& arguments) {
        const std::string& program = arguments.front();
        if (!isInstalled(program)) {
            missing_ += ", without `" + program + "`, which is not installed";
            return;
        }
        desktop::Command command = desktop.command(arguments);
        command.environment["SHELL"] = "/bin/sh"; // the hot-key daemon insists
        processes_.emplace_back(command);
        contestant_.processes.push_back(processes_.back().pid());
    }

    std::list<desktop::Process> processes_;
    std::string missing_;
    Contestant contestant_{.name = "`xdotool behave_screen_edge`, `sxhkd` and `caffeine`",
                           .processes = {}};
};

// A hundred movements a second, across the middle of the screen and back.
void movePointer(desktop::Pointer& pointer, std::chrono::seconds time) {
    const auto end = steady_clock::now() + time;
    for (auto next = steady_clock::now(); next < end; next += 10ms) {
        const auto phase = (next.time_since_epoch() / 10ms) % 200;
        const auto offset = static_cast<int>(phase < 100 ? phase : 200 - phase);
        pointer.moveTo(400 + 4 * offset, 400);
        std::this_thread::sleep_until(next + 10ms);
    }
}

void measureUnderMovement(std::chrono::seconds time) {
    const VirtualDesktop desktop;
    desktop::Pointer pointer(desktop.display());
    const ThreeTools tools(desktop);
    desktop::Quellbar quellbar(desktop);
    printHead("pointer moving", time);
    measure(
        {{"Quellbar", {quellbar.process().pid()}}, tools.contestant()},
        [&pointer](std::chrono::seconds length) { movePointer(pointer, length); }, time);
}

void countPollCost() {
    const VirtualDesktop desktop;
    desktop::Pointer(desktop.display()).moveTo(640, 400);
    std::printf("For each poll: %.1f system calls", bench::systemCallsPerPoll(desktop));
    std::fflush(stdout);
    std::printf(", %.0f instructions.\n", bench::instructionsPerPoll(desktop));
}

} // namespace

int main(int count, char** arguments) {
    const std::chrono::seconds time(count > 1 ? std::atoi(arguments[1]) : 30);
    measureAtRest(time);
    measureUnderMovement(time);
    countPollCost();
}
