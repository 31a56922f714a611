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

} // namespace checked
