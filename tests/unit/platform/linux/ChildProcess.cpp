#include "ChildProcess.h"

#include <csignal>
#include <cstdio>
#include <fstream>
#include <grp.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// Calls that the story does not make stand before and behind it.
constexpr long marker = SYS_getppid;

/// Lets the traced process run up to its next system call, or its return from one. False at its
/// end.
bool runToSystemCall(pid_t child) {
    int status = 0;
    return ::ptrace(PTRACE_SYSCALL, child, nullptr, nullptr) == 0 &&
           ::waitpid(child, &status, 0) == child && WIFSTOPPED(status);
}

/// The number of the system call that the process is about to make; -1 when it returns from one.
long nextSystemCall(pid_t child) {
    __ptrace_syscall_info info{};
    ::ptrace(PTRACE_GET_SYSCALL_INFO, child, sizeof info, &info);
    return info.op == PTRACE_SYSCALL_INFO_ENTRY ? static_cast<long>(info.entry.nr) : -1;
}

[[noreturn]] void runTraced(const std::function<void()>& story) {
    ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    ::raise(SIGSTOP);
    ::syscall(marker);
    story();
    ::syscall(marker);
    ::_exit(testing::Test::HasFailure() ? 1 : 0);
}

void write(const char* path, const std::string& text) {
    std::ofstream(path) << text;
}

// Whoever is not root here becomes root of a user namespace.
bool enterMountNamespace() {
    const std::string user = std::to_string(::geteuid());
    const std::string group = std::to_string(::getegid());
    if (user == "0") {
        return ::unshare(CLONE_NEWNS) == 0;
    }
    if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) {
        return false;
    }
    write("/proc/self/setgroups", "deny");
    write("/proc/self/uid_map", "0 " + user + " 1");
    write("/proc/self/gid_map", "0 " + group + " 1");
    return true;
}

} // namespace

pid_t startChild(const std::function<void()>& story) {
    std::fflush(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        story();
        std::fflush(nullptr);
        ::_exit(testing::Test::HasFailure() ? 1 : 0);
    }
    return child;
}

void waitFor(pid_t child) {
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0) << "see above for what the child process says";
}

void inChild(const std::function<void()>& story) {
    waitFor(startChild(story));
}

void becomeOrdinaryUser() {
    constexpr uid_t nobody = 65534;
    if (::geteuid() == 0) {
        ASSERT_EQ(::setgroups(0, nullptr), 0);
        ASSERT_EQ(::setresgid(nobody, nobody, nobody), 0);
        ASSERT_EQ(::setresuid(nobody, nobody, nobody), 0);
    }
}

bool mountSmallFileSystem(const std::string& folder, int pages) {
    const std::string size = "size=" + std::to_string(pages * ::sysconf(_SC_PAGESIZE));
    return enterMountNamespace() &&
           ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           ::mount("tmpfs", folder.c_str(), "tmpfs", 0, size.c_str()) == 0;
}

bool remountReadOnly(const std::string& folder) {
    return ::mount(nullptr, folder.c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) == 0;
}

std::vector<long> systemCallsOf(const std::function<void()>& story) {
    const pid_t child = ::fork();
    if (child == 0) {
        runTraced(story);
    }
    ::waitpid(child, nullptr, 0);
    ::ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
    std::vector<long> calls;
    int markers = 0;
    while (runToSystemCall(child)) {
        const long call = nextSystemCall(child);
        markers += call == marker ? 1 : 0;
        if (markers == 1 && call != marker && call >= 0) {
            calls.push_back(call);
        }
    }
    EXPECT_EQ(markers, 2) << "the story did not reach its end";
    return calls;
}
