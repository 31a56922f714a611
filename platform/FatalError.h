#pragma once

#include <string_view>

namespace platform {

/// Stops the process at once because of a programming error: writes "Fatal error: " and the message
/// to standard error and ends with SIGABRT. Nothing is torn down.
[[noreturn]] void fatalError(std::string_view message);

} // namespace platform
