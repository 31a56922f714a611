#pragma once

#include <cerrno>
#include <system_error>

namespace platform::linux_host {

/// What `errno` says.
[[nodiscard]] inline std::error_code lastError() {
    return {errno, std::generic_category()};
}

/// Throws what `errno` says, as std::system_error, unless the call before has succeeded.
inline void check(bool hasSucceeded) {
    if (!hasSucceeded) {
        throw std::system_error(lastError());
    }
}

} // namespace platform::linux_host
