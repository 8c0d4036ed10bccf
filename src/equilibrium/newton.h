#pragma once

#include "equilibrium/section.h"

#include <optional>

namespace ferna::equilibrium {

/// A plane that balances a load, how nearly, and after how many evaluations of the section.
struct Balance {
    CornerPlane<double> plane;
    std::optional<CornerPlane<Wide>> finer; ///< where doubles do not hold it finely enough
    double residual = 0;
    int steps = 0;
};

/// Newton's method for a load of the size 1 that the section can carry.
Balance balance(const Section& section, const Vector3& load) noexcept;

} // namespace ferna::equilibrium
