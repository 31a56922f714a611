// What the program costs while nobody uses it, its corners polled as ever: beside a bare program
// that polls the pointer as often, and the same in Qt; and with the pointer moving, beside the
// three tools that people use for the three jobs. Prints Markdown tables.
//
//   bench_idle [<seconds>]   of each measurement; 10 unless told otherwise

#include "PollCost.h"
#include "Samples.h"
#include "tests/desktop/support/Conversation.h"
#include "tests/desktop/support/Pointer.h"
#include "tests/desktop/support/Quellbar.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <list>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace {

using bench::Contestant;
using bench::Record;
using bench::Sample;
using desktop::VirtualDesktop;
using std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr int rounds = 7; // of contestants that take turns

void printHead(const std::string& scene, std::chrono::seconds time) {
    std::printf(
        "| %s | CPU ms in %lld s | voluntary switches a second | PSS MiB | Quellbar's CPU ÷ "
        "this |\n|---|---|---|---|---|\n",
        scene.c_str(), static_cast<long long>(time.count()));
}

void printRow(const std::string& name, const Record& ours, const Record& record) {
    std::printf("| %s | %.1f | %.1f | %.1f | %.2f |\n", name.c_str(),
                record.median(&Sample::milliseconds), record.median(&Sample::switches),
                record.median(&Sample::mebibytes), ours.ratioTo(record, &Sample::milliseconds));
}

/// Starts a contestant on a desktop, measures it there alone, and ends it.
using Turn = std::function<Sample(const VirtualDesktop& desktop, std::chrono::seconds time)>;

Sample measureAlone(pid_t process, std::chrono::seconds time) {
    const auto rest = [](std::chrono::seconds length) { std::this_thread::sleep_for(length); };
    return bench::measure({{.name = {}, .processes = {process}}}, rest, time).front();
}

Sample measureQuellbar(const VirtualDesktop& desktop, std::chrono::seconds time) {
    desktop::Quellbar quellbar(desktop);
    return measureAlone(quellbar.process().pid(), time);
}

Turn bareProgram(const std::string& file) {
    return [file](const VirtualDesktop& desktop, std::chrono::seconds time) {
        desktop::Conversation program(desktop.command({file}));
        return measureAlone(program.process().pid(), time);
    };
}

// One after the other: of programs that run at the same time, the first to wake finds everything
// cold and warms it for the others, and the X server is awake for whoever asks next.
void measureAtRest(std::chrono::seconds time) {
    const VirtualDesktop desktop;
    desktop::Pointer(desktop.display()).moveTo(640, 400);
    const std::vector<std::pair<std::string, Turn>> contestants{
        {"Quellbar", measureQuellbar},
        {"a bare xcb program", bareProgram(QUELLBAR_BENCH_XCB_POLLER)},
        {"a bare Qt program", bareProgram(QUELLBAR_BENCH_QT_POLLER)}};
    std::vector<Record> records(contestants.size());
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t i = 0; i < contestants.size(); ++i) {
            records[i].add(contestants[i].second(desktop, time));
        }
    }
    printHead("pointer at rest", time);
    for (std::size_t i = 0; i < contestants.size(); ++i) {
        printRow(contestants[i].first, records.front(), records[i]);
    }
    std::printf("\n");
    std::fflush(stdout);
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
    const auto used = bench::measure(
        {{"Quellbar", {quellbar.process().pid()}}, tools.contestant()},
        [&pointer](std::chrono::seconds length) { movePointer(pointer, length); }, time);
    Record ours;
    Record theirs;
    ours.add(used.front());
    theirs.add(used.back());
    printHead("pointer moving", time);
    printRow("Quellbar", ours, ours);
    printRow(tools.contestant().name, ours, theirs);
    std::printf("\n");
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
    const std::chrono::seconds time(count > 1 ? std::atoi(arguments[1]) : 10);
    measureAtRest(time);
    measureUnderMovement(time);
    countPollCost();
}
