#pragma once

#include <string>

namespace simulated {

/// Stops the process, because the program or a test did what no desktop can make sense of.
[[noreturn]] void misuse(const std::string& what);

} // namespace simulated
