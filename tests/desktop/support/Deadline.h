#pragma once

#include <chrono>
#include <functional>
#include <stdexcept>
#include <string>

namespace desktop {

/// Thrown when something that was waited for did not happen in time.
class TimedOut : public std::runtime_error {
  public:
    explicit TimedOut(const std::string& what) : std::runtime_error("timed out: " + what) {}
};

/// The moment until which something is waited for. It bounds a failure; no success depends on it,
/// so it is generous enough for a machine that does much else.
class Deadline {
  public:
    explicit Deadline(std::chrono::milliseconds fromNow = std::chrono::seconds{60})
        : moment_(std::chrono::steady_clock::now() + fromNow) {}

    [[nodiscard]] bool hasPassed() const { return std::chrono::steady_clock::now() >= moment_; }

    /// What is left, in milliseconds as poll() takes them; 0 when the moment has passed.
    [[nodiscard]] int pollTimeout() const;

  private:
    std::chrono::steady_clock::time_point moment_;
};

/// Waits until `descriptor` can be read. Answers false when the deadline passes first.
bool waitUntilReadable(int descriptor, const Deadline& deadline);

/// Waits for a state that nobody announces, by asking again after a millisecond, after two, after
/// four, up to 32, so that the asking leaves the machine to what is waited for. Where an event
/// tells of the change, wait for the event instead. Throws `TimedOut`, naming `what`.
void waitUntil(const std::function<bool()>& isSo, const std::string& what,
               const Deadline& deadline = Deadline());

} // namespace desktop
