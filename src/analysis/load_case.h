#pragma once

#include "analysis/case_values.h"
#include "runtime/dialogs.h"

namespace ferna {

/// The load case `Nr_przyp` of the state as the solver takes it.
CaseInput inputOf(const Stan& stan);

/// What earlier cases and calculations left for the case.
Carry carryOf(const Stan& stan, const Stan_przypadku& s);

/// Computes the load case `Nr_przyp` and leaves results, finished lines and the way it ended,
/// `outcomes`, in the state; then says what there is to be said. Returns when the case is finished
/// or has failed (`Przerwij_obliczenia`); once a case of a calculation has failed, later cases
/// outside the kern return without results.
/// `optHsruby_0`: the horizontal forces are taken by all anchors.
/// Run-time errors: 11, 6, 9 of the analysis; 5 for a negative plate size.
void Oblicz_przypadek(Stan& stan, Stan_przypadku& s, bool optHsruby_0, Dialogs& dialogs);

} // namespace ferna
