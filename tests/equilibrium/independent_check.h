#pragma once

#include "equilibrium/equilibrium.h"

#include <vector>

namespace ferna::testing {

/// A base and a load, as values.
struct BaseAndLoad {
    double length = 0;
    double width = 0;
    double n = 0;
    std::vector<equilibrium::Anchor> anchors;
    equilibrium::Load load;

    equilibrium::Result solved() const {
        return equilibrium::Base(length, width, n, anchors).solve(load);
    }
    /// The size of the load in N: as a force at the edge of the plate.
    double size() const;
};

/// Largest error of balance of a result, of the load, by clipping the plate along its neutral line
/// and adding up triangles in long doubles. `rounding` is what the digits of the plane's three
/// doubles leave of it.
struct Imbalance {
    double error = 0;
    double rounding = 0;
};
Imbalance imbalanceOf(const BaseAndLoad& problem, const equilibrium::Result& result);

/// True where forces pressing at the corners of the plate and pulling at the anchors, three of them
/// at most, add up to the load with a further force of `pressed` (a share of the load's size)
/// pulling at the centre. So with a positive one true means that an equilibrium exists, and with a
/// negative one false that none does.
bool forcesCarry(const BaseAndLoad& problem, double pressed);

/// True where the base can turn about this axis with the load driving it: no corner goes down, no
/// anchor goes up.
bool turnsFreely(const BaseAndLoad& problem, const equilibrium::Segment& axis);

} // namespace ferna::testing
