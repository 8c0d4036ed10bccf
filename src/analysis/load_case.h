#pragma once

#include "analysis/stan_przypadku.h"
#include "runtime/dialogs.h"

namespace ferna {

/// Computes the load case `Nr_przyp`: normalises the signs, tests the kern, searches the neutral
/// line where the resultant lies outside it, and leaves results and finished lines in the state.
/// Returns when the case is finished or has failed (`Przerwij_obliczenia`); once a case of a
/// calculation has failed, later cases outside the kern return without results.
/// `optHsruby_0`: the horizontal forces are taken by all anchors.
/// Run-time errors: 11, 6, 9 of the analysis; 5 for a negative plate size.
void Oblicz_przypadek(Stan& stan, Stan_przypadku& s, bool optHsruby_0, Dialogs& dialogs);

// The steps of the front half, exposed for their tests.

/// Mirrors the plate so that both moments are non-negative.
void Normalizuj_znaki(Stan& stan, Stan_przypadku& s);
/// Working moments in kG cm; a moment of up to 0.006 kNm is replaced by a small one.
void Ustal_momenty(Stan& stan, Stan_przypadku& s);
/// Eccentricities, their direction, and the plate's geometry.
void Ustal_mimosrody(Stan& stan, Stan_przypadku& s);
/// True where the resultant lies outside the rhombic kern of the plate.
bool Poza_rdzeniem(const Stan& stan, Stan_przypadku& s);

} // namespace ferna
