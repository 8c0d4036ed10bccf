#pragma once

#include "runtime/numbers.h"

namespace ferna {

/// Catalogue dimensions of an anchor, mm. A dimension that the kind lacks is 0.
struct CatalogueAnchor {
    Integer d;   ///< nominal diameter
    Integer Lk;  ///< straight length of the hooked anchor; 0: from the concrete and the core area
    Integer Lp0; ///< base of the straight length of the plate anchor
    Integer Ld;  ///< threaded length
    Integer a;   ///< side of the square plate
    Integer t;   ///< thickness of the plate
    Integer L1;  ///< length of the rib
};

/// The row of a diameter; all dimensions are 0 off the series.
CatalogueAnchor catalogueAnchor(Integer d);

/// Straight length of the hooked anchor, mm, before thickness and thread: the catalogue's up to
/// 30 mm, above it the whole part of `Mnoznik_dlugosci` times the core area in cm2.
Integer straightLengthHooked(const CatalogueAnchor& row, Single Mnoznik_dlugosci, Double A);

/// Straight length of the plate anchor, mm: `Wsp_dlugosci` times the base, rounded once.
Integer straightLengthPlate(const CatalogueAnchor& row, Single Wsp_dlugosci);

} // namespace ferna
