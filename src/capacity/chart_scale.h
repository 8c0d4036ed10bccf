#pragma once

#include <vector>

namespace ferna {

/// An axis from `least` to `most` with ticks at round numbers.
struct ChartScale {
    double least = 0;
    double most = 1;
    double step = 1; ///< between ticks: 1, 2 or 5 times a power of ten

    std::vector<double> ticks() const;
};

/// The axis that holds both values with a little room, 0 always on it, with about so many ticks.
ChartScale scaleOf(double least, double most, int ticks);

} // namespace ferna
