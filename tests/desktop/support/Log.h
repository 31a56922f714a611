#pragma once

#include "tests/desktop/support/Deadline.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace desktop {

/// What a process has written to the file that captures its output.
class Log {
  public:
    explicit Log(std::filesystem::path file) : file_(std::move(file)) {}

    [[nodiscard]] const std::filesystem::path& file() const { return file_; }
    [[nodiscard]] std::string text() const;
    [[nodiscard]] std::vector<std::string> lines() const;

    /// How many lines contain `part`.
    [[nodiscard]] std::size_t count(std::string_view part) const;

    /// Waits until `times` lines contain `part`. Throws `TimedOut`, quoting the log.
    void waitFor(std::string_view part, std::size_t times = 1) const;

  private:
    std::filesystem::path file_;
};

} // namespace desktop
