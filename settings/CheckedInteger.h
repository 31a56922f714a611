#pragma once

#include <cstdint>

/// Integer arithmetic that stops the process rather than give a wrong number.
namespace checked {

/// The number without its fraction (toward zero). Fatal unless it is finite and fits.
[[nodiscard]] std::int64_t truncated(double number);

/// The product. Fatal unless it fits.
[[nodiscard]] std::int64_t multiplied(std::int64_t a, std::int64_t b);

} // namespace checked
