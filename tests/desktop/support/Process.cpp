#include "tests/desktop/support/Process.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>

#include <cerrno>
#include <cstdlib>
#include <system_error>
#include <utility>

// The header of glibc 2.36 forgets to say so itself.
extern "C" {
#include <sys/pidfd.h>
}

namespace desktop {
namespace {

void check(int error, const char* call) {
    if (error != 0) {
        throw std::system_error(error, std::generic_category(), call);
    }
}

class FileActions {
  public:
    FileActions() { check(posix_spawn_file_actions_init(&actions_), "file_actions_init"); }
    ~FileActions() { posix_spawn_file_actions_destroy(&actions_); }
    FileActions(const FileActions&) = delete;
    FileActions& operator=(const FileActions&) = delete;

    void open(int number, const char* path, int flags) {
        check(posix_spawn_file_actions_addopen(&actions_, number, path, flags, 0600), path);
    }
    void duplicate(int from, int to) {
        check(posix_spawn_file_actions_adddup2(&actions_, from, to), "file_actions_adddup2");
    }
    [[nodiscard]] const posix_spawn_file_actions_t* get() const { return &actions_; }

  private:
    posix_spawn_file_actions_t actions_{};
};

// A process group of its own, and every signal as a fresh program expects it, whatever the shell
// that runs the tests ignores.
class Attributes {
  public:
    Attributes() {
        check(posix_spawnattr_init(&attributes_), "posix_spawnattr_init");
        sigset_t signals;
        sigemptyset(&signals);
        check(posix_spawnattr_setsigmask(&attributes_, &signals), "spawnattr_setsigmask");
        sigfillset(&signals);
        check(posix_spawnattr_setsigdefault(&attributes_, &signals), "spawnattr_setsigdefault");
        check(posix_spawnattr_setpgroup(&attributes_, 0), "spawnattr_setpgroup");
        check(posix_spawnattr_setflags(&attributes_, flags), "spawnattr_setflags");
    }
    ~Attributes() { posix_spawnattr_destroy(&attributes_); }
    Attributes(const Attributes&) = delete;
    Attributes& operator=(const Attributes&) = delete;

    [[nodiscard]] const posix_spawnattr_t* get() const { return &attributes_; }

  private:
    static constexpr short flags =
        POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF;

    posix_spawnattr_t attributes_{};
};

void connectStreams(FileActions& actions, const Command& command) {
    const char* const output = command.output.empty() ? "/dev/null" : command.output.c_str();
    actions.open(STDIN_FILENO, "/dev/null", O_RDONLY);
    actions.open(STDOUT_FILENO, output, O_WRONLY | O_CREAT | O_APPEND);
    actions.duplicate(STDOUT_FILENO, STDERR_FILENO);
    for (const auto& [numberHere, numberThere] : command.inherited) {
        actions.duplicate(numberHere, numberThere);
    }
}

std::vector<std::string> textOf(const Environment& environment) {
    std::vector<std::string> text;
    for (const auto& [name, value] : environment) {
        text.push_back(name);
        text.back().append("=").append(value);
    }
    return text;
}

// The form that exec takes. Borrows from `text`.
std::vector<char*> pointersTo(std::vector<std::string>& text) {
    std::vector<char*> pointers;
    pointers.reserve(text.size() + 1);
    for (std::string& item : text) {
        pointers.push_back(item.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

pid_t spawn(const Command& command) {
    // setpriv becomes the program, with a death signal that posix_spawn cannot ask for: a killed
    // test leaves no X server behind.
    std::vector<std::string> arguments{"setpriv", "--pdeathsig", "KILL", "--"};
    arguments.insert(arguments.end(), command.arguments.begin(), command.arguments.end());
    std::vector<std::string> environment = textOf(command.environment);
    FileActions actions;
    connectStreams(actions, command);
    const Attributes attributes;
    pid_t pid = -1;
    check(posix_spawnp(&pid, "setpriv", actions.get(), attributes.get(),
                       pointersTo(arguments).data(), pointersTo(environment).data()),
          command.arguments.front().c_str());
    return pid;
}

Ended endedFrom(int waitStatus) {
    if (WIFEXITED(waitStatus)) {
        return {.status = WEXITSTATUS(waitStatus), .signal = std::nullopt};
    }
    return {.status = std::nullopt, .signal = WTERMSIG(waitStatus)};
}

} // namespace

std::string searchPath() {
    const char* const path = std::getenv("PATH");
    return path == nullptr ? "/usr/bin:/bin" : path;
}

Process::Process(const Command& command)
    : pid_(spawn(command)), pidDescriptor_(pidfd_open(pid_, 0)) {
    check(pidDescriptor_.number() < 0 ? errno : 0, "pidfd_open");
}

Process::Process(Process&& other) noexcept
    : pid_(std::exchange(other.pid_, -1)), pidDescriptor_(std::move(other.pidDescriptor_)),
      ended_(std::exchange(other.ended_, std::nullopt)) {}

Process& Process::operator=(Process&& other) noexcept {
    std::swap(pid_, other.pid_);
    std::swap(pidDescriptor_, other.pidDescriptor_);
    std::swap(ended_, other.ended_);
    return *this;
}

Process::~Process() {
    try {
        if (pid_ > 0) {
            end();
        }
    } catch (const std::exception&) { // nobody is left to be told
    }
}

bool Process::isRunning() {
    return !ended_ && !hasExited(Deadline(std::chrono::milliseconds{0}));
}

void Process::signal(int number) const {
    if (!ended_) {
        kill(pid_, number);
    }
}

Ended Process::wait(const Deadline& deadline) {
    if (!ended_) {
        if (!hasExited(deadline)) {
            throw TimedOut("the end of process " + std::to_string(pid_));
        }
        reap();
    }
    return *ended_;
}

Ended Process::end(int number, const Deadline& patience) {
    if (!ended_) {
        kill(-pid_, number);
        kill(-pid_, SIGCONT); // a stopped process hears nothing else
        if (!hasExited(patience)) {
            kill(-pid_, SIGKILL);
        }
    }
    return wait();
}

bool Process::hasExited(const Deadline& deadline) const {
    return waitUntilReadable(pidDescriptor_.number(), deadline);
}

// The group is ended before its leader is reaped: as long as the leader is unreaped, nobody else
// can have its number.
void Process::reap() {
    kill(-pid_, SIGKILL);
    int waitStatus = 0;
    check(waitpid(pid_, &waitStatus, 0) < 0 ? errno : 0, "waitpid");
    ended_ = endedFrom(waitStatus);
}

void run(const Command& command) {
    const Ended ended = Process(command).wait();
    if (ended.status != 0) {
        throw std::runtime_error(command.arguments.front() + " failed");
    }
}

} // namespace desktop
