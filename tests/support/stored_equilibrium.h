#pragma once

#include "support/column_base.h"

namespace ferna::testing {

/// How far the stored results of a case are from the loads.
struct Deviation {
    Double N = 0;    ///< share of N
    Double M = 0;    ///< share of the larger moment
    Double Mabs = 0; ///< kNm
};

/// Equilibrium of the stored results of case `c`, the last one, computed anew by clipping the plate
/// along the stored ends of the neutral line: nothing of the search's formulas is used.
Deviation deviation(const ColumnBase& base, int c);

} // namespace ferna::testing
