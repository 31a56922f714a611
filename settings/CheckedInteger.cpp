#include "settings/CheckedInteger.h"

#include "platform/FatalError.h"

namespace checked {

std::int64_t truncated(double number) {
    // Both bounds are exact as doubles; a NaN is within neither.
    constexpr double lowest = -0x1p63;
    constexpr double beyond = 0x1p63;
    if (!(number >= lowest && number < beyond)) {
        platform::fatalError("the number does not fit into a 64-bit integer");
    }
    return static_cast<std::int64_t>(number);
}

std::int64_t multiplied(std::int64_t a, std::int64_t b) {
    std::int64_t product = 0;
    if (__builtin_mul_overflow(a, b, &product)) {
        platform::fatalError("the product does not fit into a 64-bit integer");
    }
    return product;
}

} // namespace checked
