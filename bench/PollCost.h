#pragma once

#include "tests/desktop/support/VirtualDesktop.h"

namespace bench {

/// How many system calls the program makes for one look at the pointer, waiting for the next one
/// included. Starts the program on the desktop, under strace.
[[nodiscard]] double systemCallsPerPoll(const desktop::VirtualDesktop& desktop);

/// How many instructions the program runs for one look at the pointer, its event loop included and
/// the kernel not. Starts the program on the desktop twice, under callgrind.
[[nodiscard]] double instructionsPerPoll(const desktop::VirtualDesktop& desktop);

} // namespace bench
