#pragma once

#include "tests/desktop/support/Channel.h"
#include "tests/desktop/support/Keyboard.h"
#include "tests/desktop/support/Process.h"
#include "tests/desktop/support/VirtualDesktop.h"

#include <chrono>
#include <functional>
#include <string>

namespace bench {

using Moment = std::chrono::steady_clock::time_point;

/// A program that waits for a trigger on its standard input and says when it began.
class TriggeredProgram {
  public:
    TriggeredProgram(const desktop::VirtualDesktop& desktop, std::vector<std::string> arguments);

    /// Has it make one pass; answers when the pass began.
    Moment trigger();

    /// How many X round trips the last pass made.
    [[nodiscard]] std::size_t roundTrips() const { return roundTrips_; }

  private:
    desktop::Channel channel_;
    desktop::Process process_;
    std::size_t roundTrips_ = 0;
};

/// What a shell does with the usual tools: one process for the list, then one for each window.
extern const std::string shellLoop;

/// Runs a command to its end; answers when it was started.
Moment runCommand(const desktop::VirtualDesktop& desktop,
                  const std::vector<std::string>& arguments);

/// The bare program that shows the window manager's limit.
[[nodiscard]] std::string limitProgram();
[[nodiscard]] std::string engineProgram();

/// A hot-key daemon that runs commands: the limit program at Super+Alt+1, the shell loop at
/// Super+Alt+Q.
class HotKeyDaemon {
  public:
    explicit HotKeyDaemon(const desktop::VirtualDesktop& desktop);

    static const desktop::Chord runsLimit;
    static const desktop::Chord runsShellLoop;

  private:
    desktop::Process process_;
};

} // namespace bench
