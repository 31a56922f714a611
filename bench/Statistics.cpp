#include "Statistics.h"

#include <algorithm>

namespace bench {

Spread spreadOf(std::vector<double> figures) {
    std::sort(figures.begin(), figures.end());
    return {figures.front(), figures[figures.size() / 2], figures.back()};
}

double pairedRatio(const std::vector<double>& ours, const std::vector<double>& other) {
    std::vector<double> ratios;
    for (std::size_t i = 0; i < std::min(ours.size(), other.size()); ++i) {
        ratios.push_back(ours[i] / other[i]);
    }
    return spreadOf(ratios).median;
}

} // namespace bench
