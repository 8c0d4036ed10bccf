#pragma once

#include "analysis/case_values.h"
#include "analysis/equilibrium_formulas.h"

namespace ferna {

// For a candidate neutral line: the compressed zone, the distances of the anchors, the stress scale
// that satisfies the equilibrium of forces, and the two moment errors that are left. Closed forms,
// in plain doubles and in this order of operations: the search depends on their last bits. None of
// them allocates. A division by zero is error 11, a value that is not finite error 6.

/// Most evaluations of `Rownowaga_c` in one attempt of the search.
inline constexpr int evaluationLimit = 1'000'000;

/// Thrown by `Rownowaga_c` when an attempt has used up its evaluations.
struct EvaluationLimitReached {};

/// The angle and the forces of the case as the formulas take them.
inline LineAngle lineAngle(const Stan_przypadku& s) {
    return {s.Pol_a, s.Pol_b, s.Nachylenie, s.Sin_beta, s.Cos_beta};
}
inline AxialForce axialForce(const Stan_przypadku& s, const CaseInput& in) {
    return {in.N,
            s.Ex,
            s.Ey,
            in.n,
            s.Pol_b * s.Sin_beta + s.Pol_a * s.Cos_beta,
            s.Ey * s.Sin_beta + s.Ex * s.Cos_beta};
}

/// Shape, integral and centroid of the compressed zone, and the four crossings of the line with the
/// edges (cm). Reads C_linii, Sin_beta, Nachylenie, Pol_a, Pol_b.
void Pole_strefy(Stan_przypadku& s);

/// Distances of the anchors from the line and their sums over the tension side. An anchor on the
/// line adds nothing. Reads Sin_beta, Cos_beta, C_linii, Xn, Yn; writes `Odl_kotwy`.
void Odleglosci_srub(Stan_przypadku& s, const CaseInput& in);

/// Both of the above, then the stress scale k from the equilibrium of forces, the resultants and
/// the moment error about the line, `Reszta_c`.
void Rownowaga_c(Stan_przypadku& s, const CaseInput& in);

/// The moment error along the line, `Reszta_beta`, at the present line; k and the concrete
/// resultant stay those of the last `Rownowaga_c`.
void Rownowaga_beta(Stan_przypadku& s, const CaseInput& in);

} // namespace ferna
