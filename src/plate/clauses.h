#pragma once

#include "design/clause.h"
#include "plate/extended.h"

namespace ferna {

// The formulas of the plate thickness, PN-B-03215:1998, Annex B: one function each, its description
// behind it. Lengths mm, forces kN, stresses and strengths MPa. Every function computes in Double
// in the order written and rounds its result once to a Single. All of them: error 5 for the root of
// a negative number, 11 for a divisor of 0, 6 for a result beyond 32 bits.

namespace standard {
inline constexpr QStringView basePlates = u"PN-B-03215:1998";
}

/// Thickness of a cantilever strip in the tension zone: `S` force of the anchor, `ca` length of the
/// cantilever, `bs` width of the strip, `fd` strength of the plate.
Single tensionStripThickness(Single S, Single ca, Single bs, Single fd);
inline constexpr Clause tensionStripThicknessClause{
    {.standard = standard::basePlates, .annex = u"B"},
    {u"t", u"mm"},
    u"2.2 · √({S} · 1000 · {ca} / ({fd} · {bs}))",
    {{{u"S", u"kN"}, {u"ca", u"mm"}, {u"bs", u"mm"}, {u"fd", u"MPa"}}}};

/// Moment at the root of a cantilever strip in the compression zone, N mm per mm, under a stress
/// linear from `sigma_p` at the column or rib to `sigma_k` at the edge of the plate.
Single compressionStripMoment(Single ca, Single sigma_k, Single sigma_p);
/// Where the smaller stress is at the edge.
inline constexpr Clause momentOfFallingStressClause{
    {.standard = standard::basePlates, .annex = u"B"},
    {u"M", u"Nmm/mm"},
    u"{ca}² · (({σp} - {σk}) / 6 + {σk} · 0.5)",
    {{{u"ca", u"mm"}, {u"σk", u"MPa"}, {u"σp", u"MPa"}}}};
/// Where it is not.
inline constexpr Clause momentOfRisingStressClause{
    {.standard = standard::basePlates, .annex = u"B"},
    {u"M", u"Nmm/mm"},
    u"{ca}² · (({σk} - {σp}) / 3 + {σp} · 0.5)",
    {{{u"ca", u"mm"}, {u"σk", u"MPa"}, {u"σp", u"MPa"}}}};

/// Thickness of the same strip under the moment `M`, N mm per mm.
Single compressionStripThickness(Single M, Single fd);
inline constexpr Clause compressionStripThicknessClause{
    {.standard = standard::basePlates, .annex = u"B"},
    {u"t", u"mm"},
    u"√({M} · 6 / {fd})",
    {{{u"M", u"Nmm/mm"}, {u"fd", u"MPa"}}}};

/// Ratio of the sides of a fragment supported on its edges, width to length.
Single sideRatio(Integer b, Integer l);
inline constexpr Clause sideRatioClause{{.standard = standard::basePlates, .annex = u"B"},
                                        {u"r", u""},
                                        u"{b} / {l}",
                                        {{{u"b", u"mm"}, {u"l", u"mm"}}}};

/// Coefficient of table B.2 at `r`, times the length `l` of the fragment, mm: between the values
/// `y0` at `r0` and `y1` a step `d` further.
Single coefficientTimesLength(Double y0, Double y1, Single r, Double r0, Double d, Integer l);
inline constexpr Clause coefficientTimesLengthClause{
    {.standard = standard::basePlates, .annex = u"B", .table = u"B.2"},
    {u"ωl", u"mm"},
    u"(({ω1} - {ω0}) · ({r} - {r0}) / {d} + {ω0}) · {l}",
    {{{u"ω0", u""}, {u"ω1", u""}, {u"r", u""}, {u"r0", u""}, {u"d", u""}, {u"l", u"mm"}}}};

/// Thickness of a fragment supported on four, three or two edges under the stress `sigma`; `share`
/// is the coefficient times the length, mm.
Single edgeFragmentThickness(Single share, Single sigma, Single fd);
inline constexpr Clause edgeFragmentThicknessClause{
    {.standard = standard::basePlates, .annex = u"B", .formula = u"B.6"},
    {u"t", u"mm"},
    u"{ωl} · √({σ} / {fd})",
    {{{u"ωl", u"mm"}, {u"σ", u"MPa"}, {u"fd", u"MPa"}}}};

/// Thickness under an IPE or HEB column without stiffeners, elastic model: `h` height of the
/// profile, `s` width of its flange, `k` its coefficient.
Single columnBaseThickness(Single sigma, Integer h, Integer s, Double k, Single fd);
inline constexpr Clause columnBaseThicknessClause{
    {.standard = standard::basePlates, .annex = u"B", .point = u"B 2"},
    {u"t", u"mm"},
    u"1.7 · √({σ} · {h} · {s} / ({fd} · {k}))",
    {{{u"σ", u"MPa"}, {u"h", u"mm"}, {u"s", u"mm"}, {u"k", u""}, {u"fd", u"MPa"}}}};

/// Ratio of a dimension of an anchor's fragment, its width `b` or the place `a` of the anchor, to
/// the place `c`.
Single chartRatio(Integer dimension, Integer c);
inline constexpr Clause chartWidthClause{{.standard = standard::basePlates, .annex = u"B"},
                                         {u"p", u""},
                                         u"{b} / {c}",
                                         {{{u"b", u"mm"}, {u"c", u"mm"}}}};
inline constexpr Clause chartPlaceClause{{.standard = standard::basePlates, .annex = u"B"},
                                         {u"q", u""},
                                         u"{a} / {c}",
                                         {{{u"a", u"mm"}, {u"c", u"mm"}}}};

/// Coefficient on one curve of a chart at the ratio `q`: on a straight piece that begins at (x0,
/// y0) and rises by y1 - y0 over the width w. Computed in the 80-bit format.
Single curveCoefficient(Single x0, Single y0, Single y1, Single w, Single q);
inline constexpr std::array<Symbol, mostSymbols> curveSymbols{
    {{u"x0", u""}, {u"y0", u""}, {u"y1", u""}, {u"w", u""}, {u"q", u""}}};
/// Fragment fixed on three edges.
inline constexpr Clause threeEdgesCurveClause{
    {.standard = standard::basePlates, .annex = u"B", .figure = u"B.2"},
    {u"y", u""},
    u"{y0} + ({q} - {x0}) · ({y1} - {y0}) / {w}",
    curveSymbols};
/// Fragment fixed on two edges.
inline constexpr Clause twoEdgesCurveClause{
    {.standard = standard::basePlates, .annex = u"B", .figure = u"B.3"},
    {u"y", u""},
    u"{y0} + ({q} - {x0}) · ({y1} - {y0}) / {w}",
    curveSymbols};

/// Coefficient between the neighbouring curves of a chart: `y1` on the curve of the ratio `L`, `y2`
/// on the curve `d` further, at the ratio `p`. Computed in the 80-bit format.
Single chartCoefficient(Single y1, Single y2, Single p, Single L, Double d);
inline constexpr std::array<Symbol, mostSymbols> chartSymbols{
    {{u"y1", u""}, {u"y2", u""}, {u"p", u""}, {u"L", u""}, {u"d", u""}}};
/// Fragment fixed on three edges.
inline constexpr Clause threeEdgesCoefficientClause{
    {.standard = standard::basePlates, .annex = u"B", .figure = u"B.2"},
    {u"y", u""},
    u"({y2} - {y1}) · ({p} - {L}) / {d} + {y1}",
    chartSymbols};
/// Fragment fixed on two edges.
inline constexpr Clause twoEdgesCoefficientClause{
    {.standard = standard::basePlates, .annex = u"B", .figure = u"B.3"},
    {u"y", u""},
    u"({y2} - {y1}) · ({p} - {L}) / {d} + {y1}",
    chartSymbols};

/// Thickness of a fragment fixed on its edges under the force `S` of an anchor; `y` coefficient of
/// the chart.
Single anchorFragmentThickness(Single S, Single y, Single fd);
inline constexpr Clause anchorFragmentThicknessClause{
    {.standard = standard::basePlates, .annex = u"B", .formula = u"B.2"},
    {u"t", u"mm"},
    u"2.2 · √({S} · 1000 / ({fd} · {y}))",
    {{{u"S", u"kN"}, {u"y", u""}, {u"fd", u"MPa"}}}};

/// A thickness found with the strength `fd`, for a plate so thick that only `fd1` holds: linear,
/// not by the root.
Single thicknessAtStrength(Single t, Double fd, Double fd1);
inline constexpr Clause thicknessAtStrengthClause{
    {},
    {u"t1", u"mm"},
    u"{t} · {fd} / {fd1}",
    {{{u"t", u"mm"}, {u"fd", u"MPa"}, {u"fd1", u"MPa"}}}};

/// Whole millimetres of a thickness, a half going up. Error 6 beyond 16 bits.
Integer wholeThickness(Single t);
inline constexpr Clause wholeThicknessClause{
    {}, {u"g", u"mm"}, u"int({t} + 0.5)", {{{u"t", u"mm"}}}};

} // namespace ferna
