#include "tests/desktop/support/Log.h"

#include <algorithm>
#include <fstream>
#include <iterator>

namespace desktop {

std::string Log::text() const {
    std::ifstream stream(file_);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<std::string> Log::lines() const {
    std::ifstream stream(file_);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

std::size_t Log::count(std::string_view part) const {
    const auto contains = [part](const std::string& line) {
        return line.find(part) != std::string::npos;
    };
    return static_cast<std::size_t>(std::ranges::count_if(lines(), contains));
}

void Log::waitFor(std::string_view part, std::size_t times) const {
    try {
        waitUntil([&] { return count(part) >= times; }, "");
    } catch (const TimedOut&) {
        throw TimedOut("\"" + std::string(part) + "\" in the log, which says:\n" + text());
    }
}

} // namespace desktop
