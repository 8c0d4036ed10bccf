#pragma once

#include "combinations/evaluation.h"

#include <array>
#include <vector>

namespace ferna::combinations {

/// What the checks of the cases are used by the calculation's own stresses, by case - 1; empty
/// where a case has no results.
using ToldUses = std::array<std::optional<Utilisation>, MaxCases>;

/// What the calculation found for a row that was put into the load table, beside its exact
/// equilibrium.
struct Compared {
    enum class State {
        Compared,   ///< both are of the same loads
        OtherLoads, ///< the case has other loads by now, or there is no such case any more
        NotReached  ///< the calculation did not come to the case
    };
    State state = State::Compared;
    int caseNumber = 0; ///< 1..6
    RowNumber row = 0;
    std::optional<Utilisation> told;  ///< empty where the calculation has no result for the case
    std::optional<Utilisation> exact; ///< empty where nothing carries it

    /// The checks of which the two give so different a use that an engineer must look: by more than
    /// 2 % and a hundredth, or on either side of 1. None where one of them has no result.
    std::vector<Check> differing() const;
    /// True where a check differs, or where only one of them has a result.
    bool differs() const;
};

/// Compares the cases of the last calculation with the combinations that were put into the load
/// table: an entry for each of these, in order.
std::vector<Compared> compared(const Stan& stan, const ToldUses& told, const Evaluator& evaluator,
                               const std::vector<std::pair<RowNumber, Combination>>& put);

} // namespace ferna::combinations
