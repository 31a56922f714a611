#pragma once

#include <cstddef>

/// How often this process has allocated with `new`.
[[nodiscard]] std::size_t allocationCount();
