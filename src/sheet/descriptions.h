#pragma once

#include "analysis/clauses.h"
#include "design/clause.h"

namespace ferna::sheet {

// Formulas that the sheet tells beside those of the calculation, in the units of the input: the
// stresses of a plane, and the balance of forces and moments computed back from them. Lengths mm,
// forces kN, moments kNm, stresses MPa.

// A case

inline constexpr Clause directionClause{
    {}, {u"α", u"rad"}, u"atan2({ey}, {ex})", {{{u"ex", u"cm"}, {u"ey", u"cm"}}}};

inline constexpr Clause magnitudeClause{{}, {u"a", u""}, u"abs({x})", {{{u"x", u""}}}};

/// Angle of the neutral line through A and B to the axis x, degrees.
inline constexpr Clause lineAngleClause{
    {},
    {u"φ", u"°"},
    u"atan2({yB} - {yA}, {xB} - {xA}) · 180 / 3.141592653589793",
    {{{u"xA", u"mm"}, {u"yA", u"mm"}, {u"xB", u"mm"}, {u"yB", u"mm"}}}};

/// Largest pressure under a plate L x B: at a corner.
inline constexpr Clause largestPressureClause{
    {.standard = standard::columnBases},
    {u"σb", u"MPa"},
    u"max(0, {s0} + abs({sx}) · {L} / 2 + abs({sy}) · {B} / 2)",
    {{{u"s0", u"MPa"}, {u"sx", u"MPa/mm"}, {u"sy", u"MPa/mm"}, {u"L", u"mm"}, {u"B", u"mm"}}}};

/// Stress of an anchor at (x, y), n times what the plane has there, and only in tension.
inline constexpr Clause anchorOfPlaneClause{{.standard = standard::columnBases},
                                            {u"σ", u"MPa"},
                                            u"{n} · min(0, {s0} + {sx} · {x} + {sy} · {y})",
                                            {{{u"n", u""},
                                              {u"s0", u"MPa"},
                                              {u"sx", u"MPa/mm"},
                                              {u"sy", u"MPa/mm"},
                                              {u"x", u"mm"},
                                              {u"y", u"mm"}}}};

/// A share of a limit.
inline constexpr Clause shareClause{
    {}, {u"w", u""}, u"abs({σ}) / {f}", {{{u"σ", u"MPa"}, {u"f", u"MPa"}}}};

/// Share of twice Rb, up to which a pressure is borne.
inline constexpr Clause doubleShareClause{{.standard = standard::columnBases},
                                          {u"w", u""},
                                          u"{σb} / (2 · {Rb})",
                                          {{{u"σb", u"MPa"}, {u"Rb", u"MPa"}}}};

// The plane of the search: through its line, with its pressure at the corner C

inline constexpr std::array<Symbol, mostSymbols> lineSymbols{{{u"σb", u"MPa"},
                                                              {u"xA", u"mm"},
                                                              {u"yA", u"mm"},
                                                              {u"xB", u"mm"},
                                                              {u"yB", u"mm"},
                                                              {u"xC", u"mm"},
                                                              {u"yC", u"mm"}}};
inline constexpr Clause slopeAlongXClause{
    {},
    {u"sx", u"MPa/mm"},
    u"{σb} · ({yA} - {yB}) / (({yA} - {yB}) · ({xC} - {xA}) + ({xB} - {xA}) · ({yC} - {yA}))",
    lineSymbols};
inline constexpr Clause slopeAlongYClause{
    {},
    {u"sy", u"MPa/mm"},
    u"{σb} · ({xB} - {xA}) / (({yA} - {yB}) · ({xC} - {xA}) + ({xB} - {xA}) · ({yC} - {yA}))",
    lineSymbols};
inline constexpr Clause stressAtCentreClause{
    {},
    {u"s0", u"MPa"},
    u"-{sx} · {xA} - {sy} · {yA}",
    {{{u"sx", u"MPa/mm"}, {u"sy", u"MPa/mm"}, {u"xA", u"mm"}, {u"yA", u"mm"}}}};

// The compressed part of the plate: a polygon, taken as triangles from its first corner

inline constexpr Clause halfClause{{}, {u"x", u"mm"}, u"{L} / 2", {{{u"L", u"mm"}}}};
inline constexpr Clause minusHalfClause{{}, {u"x", u"mm"}, u"-{L} / 2", {{{u"L", u"mm"}}}};
/// Where the neutral line meets an edge of the plate: along x on y = const, or the other way round.
inline constexpr Clause crossingClause{
    {},
    {u"x", u"mm"},
    u"-({s0} + {sy} · {y}) / {sx}",
    {{{u"s0", u"MPa"}, {u"sx", u"MPa/mm"}, {u"sy", u"MPa/mm"}, {u"y", u"mm"}}}};

inline constexpr Clause stressAtClause{
    {},
    {u"s", u"MPa"},
    u"{s0} + {sx} · {x} + {sy} · {y}",
    {{{u"s0", u"MPa"}, {u"sx", u"MPa/mm"}, {u"sy", u"MPa/mm"}, {u"x", u"mm"}, {u"y", u"mm"}}}};

inline constexpr Clause triangleAreaClause{
    {},
    {u"A", u"mm²"},
    u"(({x2} - {x1}) · ({y3} - {y1}) - ({x3} - {x1}) · ({y2} - {y1})) / 2",
    {{{u"x1", u"mm"},
      {u"y1", u"mm"},
      {u"x2", u"mm"},
      {u"y2", u"mm"},
      {u"x3", u"mm"},
      {u"y3", u"mm"}}}};
inline constexpr Clause triangleForceClause{
    {},
    {u"C", u"kN"},
    u"{A} · ({s1} + {s2} + {s3}) / 3000",
    {{{u"A", u"mm²"}, {u"s1", u"MPa"}, {u"s2", u"MPa"}, {u"s3", u"MPa"}}}};
inline constexpr Clause triangleMomentClause{
    {},
    {u"M", u"kNm"},
    u"{A} / 12000000 · (({s1} + {s2} + {s3}) · ({x1} + {x2} + {x3})"
    u" + {s1} · {x1} + {s2} · {x2} + {s3} · {x3})",
    {{{u"A", u"mm²"},
      {u"s1", u"MPa"},
      {u"s2", u"MPa"},
      {u"s3", u"MPa"},
      {u"x1", u"mm"},
      {u"x2", u"mm"},
      {u"x3", u"mm"}}}};

/// Moment of an anchor's force about an axis.
inline constexpr Clause anchorMomentClause{
    {}, {u"M", u"kNm"}, u"{F} · {x} / 1000", {{{u"F", u"kN"}, {u"x", u"mm"}}}};

// The balance

inline constexpr Clause differenceClause{
    {}, {u"Δ", u""}, u"{a} - {b}", {{{u"a", u""}, {u"b", u""}}}};
/// The size of a load: what an error of balance is a share of.
inline constexpr Clause loadSizeClause{
    {},
    {u"R", u"kN"},
    u"max(abs({N}), 2000 · abs({M1}) / {L}, 2000 · abs({M2}) / {B})",
    {{{u"N", u"kN"}, {u"M1", u"kNm"}, {u"M2", u"kNm"}, {u"L", u"mm"}, {u"B", u"mm"}}}};
inline constexpr Clause forceErrorClause{
    {}, {u"δ", u"%"}, u"100 · {Δ} / {R}", {{{u"Δ", u"kN"}, {u"R", u"kN"}}}};
inline constexpr Clause momentErrorClause{{},
                                          {u"δ", u"%"},
                                          u"200000 · {Δ} / ({L} · {R})",
                                          {{{u"Δ", u"kNm"}, {u"L", u"mm"}, {u"R", u"kN"}}}};

} // namespace ferna::sheet
