#pragma once

#include "design/clause.h"
#include "runtime/numbers.h"

namespace ferna {

// The formulas of the catalogue anchor, one function each, its description behind it: capacity and
// lengths. Lengths mm. Sums of whole numbers keep each partial sum within 16 bits: error 6 beyond.

/// Tensile capacity of an anchor, kN: its core area, cm2, and the strength of its steel, MPa.
Single anchorCapacity(Double A, Single fd);
inline constexpr Clause anchorCapacityClause{
    {}, {u"N", u"kN"}, u"{A} · ({fd} · 0.1)", {{{u"A", u"cm²"}, {u"fd", u"MPa"}}}};

/// Diameter of the bend of a hooked anchor: 2.5 d under 20 mm, rounded with ties to even, else 5 d.
Integer bendDiameter(Integer d);
/// Under 20 mm; the description leaves out the rounding.
inline constexpr Clause bendOfThinAnchorClause{{}, {u"D", u"mm"}, u"2.5 · {d}", {{{u"d", u"mm"}}}};
inline constexpr Clause bendDiameterClause{{}, {u"D", u"mm"}, u"5 · {d}", {{{u"d", u"mm"}}}};

/// Length of the hook.
Integer hookLength(Integer d);
inline constexpr Clause hookLengthClause{{}, {u"Lh", u"mm"}, u"5 · {d}", {{{u"d", u"mm"}}}};

/// Straight length of a hooked anchor above 30 mm: coefficient k of the concrete times the core
/// area in cm2, the whole part.
Integer anchorageOfArea(Single k, Double A);
inline constexpr Clause anchorageOfAreaClause{
    {}, {u"Lk", u"mm"}, u"int({k} · {A})", {{{u"k", u"mm/cm²"}, {u"A", u"cm²"}}}};

/// Straight length of a plate anchor: coefficient of the concrete times the catalogue's base,
/// rounded once, ties to even. The description leaves out the rounding.
Integer anchorageOfBase(Single coefficient, Integer Lp0);
inline constexpr Clause anchorageOfBaseClause{
    {}, {u"Lp", u"mm"}, u"{ω} · {Lp0}", {{{u"ω", u""}, {u"Lp0", u"mm"}}}};

/// Straight part Lo of an anchor: its anchorage, the thickness g of base plate and grout, and its
/// thread.
Integer straightPart(Integer anchorage, Integer g, Integer Ld);
inline constexpr Clause straightPartClause{
    {}, {u"Lo", u"mm"}, u"{L} + {g} + {Ld}", {{{u"L", u"mm"}, {u"g", u"mm"}, {u"Ld", u"mm"}}}};

/// Whole length of a hooked anchor, a multiple of 50.
Integer hookedAnchorLength(Integer Lo, Integer Lh);
inline constexpr Clause hookedAnchorLengthClause{
    {}, {u"Lc", u"mm"}, u"50 · int(({Lo} + {Lh}) / 50 + 0.5)", {{{u"Lo", u"mm"}, {u"Lh", u"mm"}}}};

/// Whole length of a plate anchor with its plate of the thickness t, a multiple of 50. Under the
/// plate of one without a rib are 30 mm more.
Integer plateAnchorLength(Integer Lo, Integer t, bool hasRib);
inline constexpr Clause ribbedAnchorLengthClause{
    {}, {u"Lc", u"mm"}, u"50 · int(({Lo} + {t}) / 50 + 0.5)", {{{u"Lo", u"mm"}, {u"t", u"mm"}}}};
inline constexpr Clause plateAnchorLengthClause{{},
                                                {u"Lc", u"mm"},
                                                u"50 · int(({Lo} + {t} + 30) / 50 + 0.5)",
                                                {{{u"Lo", u"mm"}, {u"t", u"mm"}}}};

/// The nearest multiple of 50, a tie going up.
Integer R50(Integer x);

} // namespace ferna
