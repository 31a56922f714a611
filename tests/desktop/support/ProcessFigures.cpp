#include "tests/desktop/support/ProcessFigures.h"

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace desktop {
namespace {

namespace fs = std::filesystem;

fs::path folderOf(pid_t process) {
    return fs::path("/proc") / std::to_string(process);
}

// The number behind a label at the beginning of a line.
std::uint64_t figure(const fs::path& file, const std::string& label) {
    std::ifstream stream(file);
    for (std::string line; std::getline(stream, line);) {
        if (line.starts_with(label)) {
            return std::stoull(line.substr(label.size()));
        }
    }
    throw std::runtime_error("no \"" + label + "\" in " + file.string());
}

// The first number of a thread's file "schedstat": the nanoseconds that it has run.
std::uint64_t nanosecondsRun(const fs::path& thread) {
    std::uint64_t nanoseconds = 0;
    std::ifstream(thread / "schedstat") >> nanoseconds;
    return nanoseconds;
}

template <typename FigureOfThread>
std::uint64_t sumOverThreads(pid_t process, FigureOfThread figureOf) {
    std::uint64_t sum = 0;
    for (const auto& thread : fs::directory_iterator(folderOf(process) / "task")) {
        sum += figureOf(thread.path());
    }
    return sum;
}

} // namespace

std::uint64_t voluntarySwitches(pid_t process) {
    return sumOverThreads(process, [](const fs::path& thread) {
        return figure(thread / "status", "voluntary_ctxt_switches:");
    });
}

std::chrono::nanoseconds processorTime(pid_t process) {
    return std::chrono::nanoseconds(sumOverThreads(process, nanosecondsRun));
}

std::uint64_t proportionalSetSize(pid_t process) {
    return figure(folderOf(process) / "smaps_rollup", "Pss:");
}

} // namespace desktop
