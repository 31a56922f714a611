#pragma once

#include <functional>
#include <string>
#include <sys/types.h>
#include <vector>

/// Runs the story in a process of its own and waits for its end. An expectation that fails there
/// fails the test here.
void inChild(const std::function<void()>& story);

/// Starts the story in a process of its own; `waitFor` ends it.
[[nodiscard]] pid_t startChild(const std::function<void()>& story);
void waitFor(pid_t child);

/// Makes this process one of an ordinary user: permissions do not bind root.
void becomeOrdinaryUser();

/// Gives this process a small file system of its own at the folder, of `pages` memory pages. False
/// when this machine does not allow that.
[[nodiscard]] bool mountSmallFileSystem(const std::string& folder, int pages);

/// Makes the file system that was mounted there read-only.
[[nodiscard]] bool remountReadOnly(const std::string& folder);

/// The numbers of the system calls (SYS_...) that the story makes, in order. It runs in a process
/// of its own, which starts as a copy of this one.
[[nodiscard]] std::vector<long> systemCallsOf(const std::function<void()>& story);
