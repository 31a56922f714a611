#pragma once

#include <cstddef>

namespace bench {

/// How often this process has written to an X server and then waited for its answer.
[[nodiscard]] std::size_t roundTrips();

} // namespace bench
