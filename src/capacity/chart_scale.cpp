#include "capacity/chart_scale.h"

#include <algorithm>
#include <cmath>

namespace ferna {

std::vector<double> ChartScale::ticks() const {
    std::vector<double> places;
    const double first = std::ceil(least / step - 1e-9);
    const double last = std::floor(most / step + 1e-9);
    for (double nth = first; nth <= last; ++nth)
        places.push_back(nth * step + 0.0); // no sign on a nought
    return places;
}

ChartScale scaleOf(double least, double most, int ticks) {
    least = std::min(least, 0.0);
    most = std::max(most, 0.0);
    if (!(most > least))
        return {-1, 1, 1};
    const double room = 0.06 * (most - least);
    ChartScale scale{least - room, most + room, 1};
    const double rough = (scale.most - scale.least) / std::max(ticks, 2);
    const double power = std::pow(10, std::floor(std::log10(rough)));
    for (const double times : {1, 2, 5, 10})
        if (times * power >= rough * 0.999) {
            scale.step = times * power;
            break;
        }
    return scale;
}

} // namespace ferna
