#include "PollCost.h"

#include "tests/desktop/support/Log.h"
#include "tests/desktop/support/Process.h"
#include "tests/desktop/support/Quellbar.h"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <stdexcept>
#include <string>
#include <thread>

namespace bench {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

// Runs the program inside a tool for a while.
void runInside(const desktop::VirtualDesktop& desktop, const std::vector<std::string>& tool,
               std::chrono::seconds time) {
    desktop::Command command = desktop::Quellbar::command(desktop);
    command.arguments.insert(command.arguments.begin(), tool.begin(), tool.end());
    desktop::Process process(command);
    std::this_thread::sleep_for(time);
    process.end(SIGTERM, desktop::Deadline(60s));
}

// What callgrind has counted in one run.
struct Counted {
    double instructions = 0;
    double polls = 0;
};

Counted read(const fs::path& file) {
    Counted counted;
    std::ifstream stream(file);
    bool isPointerQuery = false;
    for (std::string line; std::getline(stream, line);) {
        if (line.starts_with("calls=") && isPointerQuery) {
            counted.polls += std::stod(line.substr(line.find('=') + 1));
        } else if (line.starts_with("totals: ")) {
            counted.instructions = std::stod(line.substr(line.find(' ')));
        }
        isPointerQuery = line == "cfn=xcb_query_pointer_reply";
    }
    return counted;
}

Counted count(const desktop::VirtualDesktop& desktop, std::chrono::seconds time) {
    const fs::path file = desktop.home() / "callgrind.out";
    runInside(desktop,
              {"valgrind", "--tool=callgrind", "--compress-strings=no",
               "--callgrind-out-file=" + file.string()},
              time);
    return read(file);
}

} // namespace

// Each look begins with one at the settings file.
double systemCallsPerPoll(const desktop::VirtualDesktop& desktop) {
    const fs::path file = desktop.home() / "strace.out";
    runInside(desktop, {"strace", "-f", "-o", file.string()}, 5s);
    const auto lines = desktop::Log(file).lines();
    const auto isLook = [](const std::string& line) {
        return line.find("defaults.json") != std::string::npos;
    };
    const auto looks = std::ranges::count_if(lines, isLook);
    if (looks < 20) {
        throw std::runtime_error("too few polls under strace");
    }
    const auto last = std::find_if(lines.rbegin(), lines.rend(), isLook);
    constexpr int measured = 10;
    auto first = last;
    for (int i = 0; i < measured; ++i) {
        first = std::find_if(first + 1, lines.rend(), isLook);
    }
    return static_cast<double>(first - last) / measured;
}

// The longer run makes more polls than the shorter one, and otherwise nearly the same.
double instructionsPerPoll(const desktop::VirtualDesktop& desktop) {
    const Counted shorter = count(desktop, 10s);
    const Counted longer = count(desktop, 50s);
    if (longer.polls - shorter.polls < 200) {
        throw std::runtime_error("too few polls under callgrind");
    }
    return (longer.instructions - shorter.instructions) / (longer.polls - shorter.polls);
}

} // namespace bench
