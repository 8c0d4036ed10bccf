#pragma once

#include "combinations/evaluation.h"

namespace ferna::combinations {

/// What the calculation found for a case of the load table, beside the exact equilibrium of the
/// combination that was put there.
struct Compared {
    int caseNumber = 0; ///< 1..6
    RowNumber row = 0;
    bool isComputed = false; ///< false: the calculation has no results for the case
    Double concrete = 0;     ///< utilisations by the calculation's own stresses
    Double tension = 0;
    std::optional<Utilisation> exact; ///< empty where nothing carries it

    /// True where they differ so that an engineer must look: by more than 2 % and a hundredth, in
    /// whether a check passes, or where only one of them has a result.
    bool differs() const;
};

/// Compares the cases of the last calculation with the combinations that were put into the load
/// table, in order. Cases whose loads are others by now, and those that the calculation did not
/// come to, are left out.
std::vector<Compared> compared(const Stan& stan, const Evaluator& evaluator,
                               const std::vector<std::pair<RowNumber, Combination>>& put);

} // namespace ferna::combinations
