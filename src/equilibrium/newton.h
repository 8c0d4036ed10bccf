#pragma once

#include "equilibrium/section.h"

namespace ferna::equilibrium {

/// A plane that balances a load, how nearly, and after how many evaluations of the section.
struct Balance {
    CornerPlane plane;
    double residual = 0;
    int steps = 0;
};

/// Newton's method for a load of the size 1 that the section can carry.
Balance balance(const Section& section, const Vector3& load) noexcept;

/// Error of a force about the corner as one about the centre: its largest part.
double sizeAboutCentre(const Vector3& error) noexcept;

} // namespace ferna::equilibrium
