#pragma once

#include "tests/desktop/support/Deadline.h"
#include "tests/desktop/support/FileDescriptor.h"

#include <sys/types.h>

#include <csignal>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace desktop {

using Environment = std::map<std::string, std::string>;

/// $PATH of this process, for the environments of others.
[[nodiscard]] std::string searchPath();

/// A descriptor of this process under the number that a started process finds it at.
struct Inherited {
    int numberHere;
    int numberThere;
};

/// How to start a program.
struct Command {
    std::vector<std::string> arguments; ///< the program, a path or a name in PATH, comes first
    Environment environment;            ///< all of it: nothing else is inherited
    std::filesystem::path output{};     ///< file that standard output and error are appended to
    std::vector<Inherited> inherited{}; ///< instead of, or besides, the standard streams
};

/// How a process ended: by itself with a status, or killed by a signal.
struct Ended {
    std::optional<int> status{};
    std::optional<int> signal{};

    bool operator==(const Ended&) const = default;
};

/// A process that this one started, in a process group of its own. Whatever it is and whatever it
/// started in turn ends with this object. Should this process be killed first, the other one ends
/// with it, but not what that started.
class Process {
  public:
    /// Throws std::system_error when nothing could be started. A program that does not exist ends
    /// with status 127.
    explicit Process(const Command& command);
    ~Process();
    Process(Process&& other) noexcept;
    Process& operator=(Process&& other) noexcept;
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    [[nodiscard]] pid_t pid() const { return pid_; }
    [[nodiscard]] bool isRunning();

    /// Sends a signal to the process, if it is still there.
    void signal(int number) const;

    /// Waits for the process to end, then ends what it left behind. Throws `TimedOut`.
    Ended wait(const Deadline& deadline = Deadline());

    /// Sends the signal to the whole group and waits; a group that does not listen is killed.
    Ended end(int number = SIGTERM, const Deadline& patience = Deadline(std::chrono::seconds{5}));

  private:
    [[nodiscard]] bool hasExited(const Deadline& deadline) const;
    void reap();

    pid_t pid_ = -1;
    FileDescriptor pidDescriptor_;
    std::optional<Ended> ended_;
};

/// Runs a command to its end. Throws std::runtime_error unless it ends with status 0.
void run(const Command& command);

} // namespace desktop
