#pragma once

#include "analysis/case_values.h"

namespace ferna {

// What a settled case leaves behind in the state: stresses and forces of the anchors, the concrete
// stress, the checks, and their finished lines in `Wiersze_wynikow`. Error 9 beyond its 132 lines;
// error 11 where the horizontal forces find no anchor to take them.

/// The anchor stresses that stand for a case, MPa, also those of an earlier calculation.
ByAnchor<Single> stressesOf(const Stan& stan, int c);

/// Stores what the case has come to, with its lines: the ends of the neutral line and the anchors
/// in tension, or the mark of the compressed plate; then the concrete stress.
void Zapisz_wyniki(Stan& stan, const CaseResult& result);

/// The checks common to both: concrete stress against Rb and 2 Rb, horizontal forces by friction or
/// by the anchors, with the shape of the zone and the stresses that stand for the case. Closes the
/// lines of the case.
void Sprawdz_beton_i_sily_poziome(Stan& stan, Integer zoneShape, const ByAnchor<Single>& stresses);

} // namespace ferna
