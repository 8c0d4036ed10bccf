#pragma once

#include "capacity/strength.h"

#include <vector>

namespace ferna {

// The border of the loads that a base bears, by the exact equilibrium.
//
// Without horizontal forces the stresses grow with the load: those of k times the load are k times
// as large. So along a ray from the origin of (N, M1, M2) one equilibrium tells where the border
// is. At a fixed N a ray has to be searched: where the largest share of a limit becomes 1, a
// bracketed root.
//
// Horizontal forces stand beside the line and do not grow along it. The check of tension and shear
// together (all anchors take the shear) takes part: with V it leaves the tension less room. The
// check of shear by the anchors on the tension side does not: it fails where few anchors are in
// tension and passes further out, so it bounds no region around the centre. It stands in the
// utilisation of every point instead, and who shows the line has to look there.

/// What keeps a load from growing further.
enum class Border {
    Concrete,    ///< pressure at twice Rb
    Tension,     ///< an anchor at fd
    Interaction, ///< tension and shear together
    Tipping      ///< the limits are not reached, beyond it no equilibrium exists
};

/// A load on the border, what the checks are used there, and which of them is the border. The
/// border's own utilisation is 1 within 1e-9, but under `Tipping`, where all are below.
struct LinePoint {
    equilibrium::Load load;
    Utilisation used;
    Border border = Border::Concrete;
};

/// A closed line around `centre`; without points where not even the centre is borne, so that
/// nothing of the plane is.
struct CapacityLine {
    equilibrium::Load centre;
    std::vector<LinePoint> points; ///< in the order of their directions, counter-clockwise
};

inline constexpr int usualDirections = 360;

/// The load with this N that a base bears most easily: its stresses are as even as they can be, and
/// where its limits do not hold no moment helps. In the centre of the plate where N presses, in
/// that of the anchors' areas where it pulls.
equilibrium::Load easiestLoad(const Strength& strength, double N);

/// Up to which moments a base bears N, kN, with V beside it: rays from `easiestLoad` at equal
/// angles in the plane of M1 to the plate's length and M2 to its width, the first along M1.
CapacityLine momentLine(const Strength& strength, double N, const Shear& shear = {},
                        int directions = usualDirections);

/// The point of that line on the ray that goes from `easiestLoad` through `load`, N its own. Empty
/// where the line has no points or the load is that centre itself.
std::optional<LinePoint> onMomentLine(const Strength& strength, const equilibrium::Load& load,
                                      const Shear& shear = {});

/// A moment of a plane with N.
enum class Moment { M1, M2 };

/// Up to which N together with one moment a base bears, the other moment being 0: rays from the
/// origin at equal angles in the plane of N to what the concrete bears and the moment to a sixth of
/// it on the plate's side. The first ray is that of pure compression. With V beside it a ray ends
/// where it comes first to a check that fails; where V is more than the anchors bear without any
/// tension there are no points, though friction may take it under a large N.
CapacityLine axialLine(const Strength& strength, Moment moment, const Shear& shear = {},
                       int directions = usualDirections);

/// How many times a load with its horizontal forces may grow, all in proportion, or has to shrink
/// where it is below 1, by all checks. 0 where the column tips over or nothing bears the shear;
/// infinite for no load at all.
double loadFactor(const Strength& strength, const equilibrium::Load& load, const Shear& shear);

} // namespace ferna
