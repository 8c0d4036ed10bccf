#pragma once

#include "runtime/numbers.h"

#include <optional>
#include <span>

namespace ferna {

// The curves of the two load charts as they were taken off by hand, with all slips of that hand.
// Ordinates are written as decimals and taken as Singles.

/// End of a segment: a/c and the coefficient there.
struct ChartNode {
    Double x;
    Double y;
};

/// One curve. Its segments run from node to node.
struct ChartCurve {
    Integer krzywa; ///< ten times the b/c of the curve
    std::span<const ChartNode> nodes;
    bool lastIsOpen = false; ///< the last segment does not contain its end
    /// A node that belongs to the segment on its left, where the rule is the one on its right.
    std::optional<Double> nodeOnItsLeft = std::nullopt;
};

/// A segment, or all segments within `from`..`to`, with fields other than its nodes give.
struct ChartDeparture {
    Integer krzywa;
    Double from;
    Double to;
    std::optional<Double> x0 = std::nullopt;
    std::optional<Double> y0 = std::nullopt;
    std::optional<Double> y1 = std::nullopt;
    std::optional<Double> w = std::nullopt;
};

struct Chart {
    std::span<const ChartCurve> curves;
    std::span<const ChartDeparture> departures;
};

/// Fragment fixed on three edges (PN-B-03215:1998, figure B.2).
const Chart& chartB2();
/// Fragment fixed on two edges (PN-B-03215:1998, figure B.3).
const Chart& chartB3();

/// The curve whose first segment reaches down without limit, in both charts.
inline constexpr Integer curveWithoutLowerLimit = 10;

} // namespace ferna
