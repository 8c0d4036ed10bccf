#pragma once

namespace ferna {

/// How a load case ended.
enum class CaseOutcome {
    NotComputed,           ///< the calculation has not come to it
    WholePlate,            ///< the plate is compressed as a whole
    Found,                 ///< a neutral line under the loads as typed
    FoundWithRaisedMoment, ///< a neutral line with the smaller moment a tenth greater
    FoundWithMovedAnchor,  ///< a neutral line with the last anchor moved, as it stays from then on
    OneMoment,             ///< a moment in one plane alone, in the plane of the anchors: no line
    OutOfPlane,            ///< the same with anchors outside the plane: said, no results
    NoStart,               ///< the first angle is not admissible: no results
    GaveUp,                ///< said "BRAK ROZWIĄZANIA": no results
    PassedOver,            ///< searched after a case that was given up: no results
    Failed                 ///< a run-time error
};

} // namespace ferna
