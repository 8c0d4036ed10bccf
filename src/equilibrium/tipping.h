#pragma once

#include "equilibrium/section.h"

namespace ferna::equilibrium {

// A load has no equilibrium where the plate can turn about an axis with the load doing work,
// nothing of it being pressed into the concrete and no anchor being stretched. Such turns r(x, y) =
// -1 + r[0] x + r[1] y (r <= 0 on the square, r >= 0 at the anchors) form a cone, so it is enough
// to look at its edges, each about an axis along an edge of the plate or through two corners or
// anchors. An anchor inside the plate leaves none.

struct Turn {
    double x = 0;
    double y = 0;
};

class Tipping {
public:
    /// Finds the turns that the anchors leave free.
    void prepare(const Section& section) noexcept;

    /// False where the anchors hold the plate against every turn.
    bool leavesTurns() const noexcept { return count_ > 0; }

    /// True where a load of the size 1 has an equilibrium. A load that anchors carry alone, along
    /// an axis about which the plate is free, is on the verge: `load` is moved by 1e-12 to the safe
    /// side.
    bool carries(const Section& section, Vector3& load) const noexcept;

    /// The turn whose axis the load overturns with the largest moment, in a plate of these half
    /// sizes. To be asked where `carries` is false.
    Turn governing(const Vector3& load, double halfLength, double halfWidth) const noexcept;

private:
    void consider(const Section& section, const Vector3& first, const Vector3& second) noexcept;

    int count_ = 0;
    std::array<Turn, mostAnchors + 8> turns_{};
};

} // namespace ferna::equilibrium
