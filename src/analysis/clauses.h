#pragma once

#include "design/clause.h"
#include "runtime/numbers.h"

namespace ferna {

// The formulas of a load case outside the search of its neutral line, one function each, its
// description behind it. The solver works in kG and cm, the results are in kN and MPa. Every
// function computes in Double in the order written; a Single result is rounded once. All of them:
// error 11 for a divisor of 0, 6 for a result beyond 32 bits.

namespace standard {
inline constexpr QStringView columnBases = u"PN-B-03215:1999";
}

// Units

/// A force in kN as kG.
Single forceInKilograms(Single kN);
inline constexpr Clause forceInKilogramsClause{
    {}, {u"N", u"kG"}, u"{N} · 1000 / 9.80665", {{{u"N", u"kN"}}}};

/// A moment in kNm as kG cm.
Double momentInKilograms(Double kNm);
inline constexpr Clause momentInKilogramsClause{
    {}, {u"M", u"kGcm"}, u"{M} · 100000 / 9.80665", {{{u"M", u"kNm"}}}};

/// A stress in kG/cm2 as MPa.
Single stressInMegapascals(Double kGcm2);
inline constexpr Clause stressInMegapascalsClause{
    {}, {u"σ", u"MPa"}, u"{σ} · 9.80665 / 100", {{{u"σ", u"kG/cm²"}}}};

// The resultant and the kern of the plate L x B

/// Eccentricity of the force N by the moment M along one axis, cm.
Double eccentricity(Double M, Double N);
inline constexpr Clause eccentricityClause{
    {}, {u"e", u"cm"}, u"{M} / {N}", {{{u"M", u"kGcm"}, {u"N", u"kG"}}}};

/// Length of an eccentricity ex, ey, cm.
Double eccentricityLength(Double ex, Double ey);
inline constexpr Clause eccentricityLengthClause{
    {}, {u"e", u"cm"}, u"√({ey}² + {ex}²)", {{{u"ex", u"cm"}, {u"ey", u"cm"}}}};

/// Radius of the rhombic kern of the plate in the direction alfa of the eccentricity, cm.
Double kernRadius(Double L, Double B, Double alfa);
inline constexpr Clause kernRadiusClause{{},
                                         {u"r", u"cm"},
                                         u"{B} / (6 · (sin({α}) + {B} / {L} · cos({α})))",
                                         {{{u"L", u"cm"}, {u"B", u"cm"}, {u"α", u"rad"}}}};

/// Section modulus of a rectangle about the middle parallel to `width`, cm3.
Double sectionModulus(Double width, Double depth);
inline constexpr Clause sectionModulusClause{
    {}, {u"W", u"cm³"}, u"{b} · {h}² / 6", {{{u"b", u"cm"}, {u"h", u"cm"}}}};

/// Greatest stress under a plate that is compressed as a whole, at its corner, kG/cm2.
Double cornerStress(Double N, Double L, Double B, Double M1, Double Wx, Double M2, Double Wy);
inline constexpr Clause cornerStressClause{{.standard = standard::columnBases},
                                           {u"σb", u"kG/cm²"},
                                           u"{N} / ({L} · {B}) + {M1} / {Wx} + {M2} / {Wy}",
                                           {{{u"N", u"kG"},
                                             {u"L", u"cm"},
                                             {u"B", u"cm"},
                                             {u"M1", u"kGcm"},
                                             {u"Wx", u"cm³"},
                                             {u"M2", u"kGcm"},
                                             {u"Wy", u"cm³"}}}};

// With a neutral line

/// Greatest stress of the concrete: the resultant C over the integral V of the stress field that is
/// 1 at the corner, kG/cm2.
Double concreteStress(Double C, Double V);
inline constexpr Clause concreteStressClause{{.standard = standard::columnBases},
                                             {u"σb", u"kG/cm²"},
                                             u"{C} / {V}",
                                             {{{u"C", u"kG"}, {u"V", u"cm²"}}}};

/// Force of an anchor of the area A at the distance d from the line, kG, negative in tension: n
/// ratio Es / Eb, k stress of the concrete per cm of distance.
Single anchorForce(Double d, Double n, Double k, Double A);
inline constexpr Clause anchorForceClause{
    {.standard = standard::columnBases},
    {u"F", u"kG"},
    u"{d} · {n} · {k} · {A}",
    {{{u"d", u"cm"}, {u"n", u""}, {u"k", u"kG/cm³"}, {u"A", u"cm²"}}}};

/// Its stress, kG/cm2.
Single anchorStress(Single F, Double A);
inline constexpr Clause anchorStressClause{{.standard = standard::columnBases},
                                           {u"σ", u"kG/cm²"},
                                           u"{F} / {A}",
                                           {{{u"F", u"kG"}, {u"A", u"cm²"}}}};

/// Force of an anchor from its stress in MPa, kN.
Single anchorForceOfStress(Single sigma, Double A);
inline constexpr Clause anchorForceOfStressClause{
    {}, {u"F", u"kN"}, u"{σ} · {A} · 0.1", {{{u"σ", u"MPa"}, {u"A", u"cm²"}}}};

// Checks of a case. Stresses and strengths MPa, forces kN

/// Stress of the concrete to its strength Rb.
Single concreteRatio(Single sigma_b, Single Rb);
inline constexpr Clause concreteRatioClause{{.standard = standard::columnBases},
                                            {u"σb/Rb", u""},
                                            u"{σb} / {Rb}",
                                            {{{u"σb", u"MPa"}, {u"Rb", u"MPa"}}}};

/// How the stress stands to the strength: below it, up to its double, or above that.
enum class ConcreteVerdict { Satisfied, Exceeded, AboveDouble };
/// A stress equal to either limit is `Exceeded`.
ConcreteVerdict concreteVerdict(Single sigma_b, Single Rb);

/// Horizontal force.
Single horizontalForce(Single Vx, Single Vy);
inline constexpr Clause horizontalForceClause{
    {}, {u"V", u"kN"}, u"√({Vx}² + {Vy}²)", {{{u"Vx", u"kN"}, {u"Vy", u"kN"}}}};

/// Horizontal force below which the friction between plate and concrete takes it.
Double frictionForce(Single N);
inline constexpr Clause frictionForceClause{
    {.standard = standard::columnBases}, {u"T", u"kN"}, u"0.3 · {N}", {{{u"N", u"kN"}}}};

/// Shear of the anchors with the area A in all, cm2.
Single anchorShear(Single V, Single A);
inline constexpr Clause anchorShearClause{{.standard = standard::columnBases},
                                          {u"τ", u"MPa"},
                                          u"{V} / {A} · 10",
                                          {{{u"V", u"kN"}, {u"A", u"cm²"}}}};

/// Utilisation by shear alone.
Single shearUtilisation(Single tau, Single fv);
inline constexpr Clause shearUtilisationClause{{.standard = standard::columnBases},
                                               {u"w", u""},
                                               u"{τ} / {fv}",
                                               {{{u"τ", u"MPa"}, {u"fv", u"MPa"}}}};

/// Utilisation by tension and shear together; fd2 strength of the tensile term.
Single interactionUtilisation(Single sigma, Single fd2, Single tau, Single fv);
inline constexpr Clause interactionUtilisationClause{
    {.standard = standard::columnBases},
    {u"w", u""},
    u"({σ} / {fd2})² + ({τ} / {fv})²",
    {{{u"σ", u"MPa"}, {u"fd2", u"MPa"}, {u"τ", u"MPa"}, {u"fv", u"MPa"}}}};

/// How a utilisation stands to 1: below it, up to 5 % over it, or above that.
enum class ShearVerdict { Satisfied, WithinFivePercent, Exceeded };
ShearVerdict shearVerdict(Single w);

} // namespace ferna
