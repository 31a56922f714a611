#pragma once

#include <vector>

namespace bench {

/// Lowest, middle and highest of some figures; the figures must not be none.
struct Spread {
    double lowest;
    double median;
    double highest;
};

[[nodiscard]] Spread spreadOf(std::vector<double> figures);

/// The median of the ratios of figures that were taken in pairs.
[[nodiscard]] double pairedRatio(const std::vector<double>& ours, const std::vector<double>& other);

} // namespace bench
