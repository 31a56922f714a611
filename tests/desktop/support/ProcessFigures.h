#pragma once

#include <sys/types.h>

#include <chrono>
#include <cstdint>

namespace desktop {

/// What the kernel says of a running process, all its threads together. The process must exist.

/// How often it has gone to sleep by itself, to be woken by an event or a timer.
[[nodiscard]] std::uint64_t voluntarySwitches(pid_t process);

/// Processor time, in the program and in the kernel on its behalf.
[[nodiscard]] std::chrono::nanoseconds processorTime(pid_t process);

/// Memory in KiB, pages that are shared with other processes being shared out among them.
[[nodiscard]] std::uint64_t proportionalSetSize(pid_t process);

} // namespace desktop
