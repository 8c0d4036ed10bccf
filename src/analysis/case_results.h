#pragma once

#include "analysis/stan_przypadku.h"

namespace ferna {

// What a settled case leaves behind: stresses and forces of the anchors, the concrete stress, the
// checks, and their finished lines in `Wiersze_wynikow`. Error 9 beyond its 132 lines; error 11
// where the horizontal forces find no anchor to take them.

/// The plate is compressed as a whole: corner stress and its two lines.
void Wyniki_calej_plyty(Stan& stan, Stan_przypadku& s);

/// A neutral line was found: its ends on the plate in the axes of the input, the anchors in tension
/// with a line each, and the line of the concrete stress.
void Wyniki_linii_obojetnej(Stan& stan, Stan_przypadku& s);

/// The checks common to both: concrete stress against Rb and 2 Rb (PN-B-03215:1999), horizontal
/// forces by friction or by the anchors. Closes the lines of the case.
void Sprawdz_beton_i_sily_poziome(Stan& stan, const Stan_przypadku& s);

} // namespace ferna
