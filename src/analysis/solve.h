#pragma once

#include "analysis/case_values.h"

namespace ferna {

/// Computes one load case: tests the kern, searches the neutral line where the resultant lies
/// outside it, and gives stresses and forces. Says and writes nothing. Run-time errors of the
/// analysis, 11, 6 and 5 for a negative plate size, are the outcome `Failed`; `carry` then holds
/// what the case had changed before.
CaseResult solve(const CaseInput& in, Carry& carry);

/// The same in a working record that shows the solver's last steps; what it held before does not
/// count.
CaseResult solve(const CaseInput& in, Carry& carry, Stan_przypadku& s);

// Its steps, exposed for their tests.

/// Mirrors the plate so that both moments are non-negative.
void Normalizuj_znaki(Stan_przypadku& s, const CaseInput& in, const Carry& carry);
/// Working moments in kG cm; a moment of up to 0.006 kNm is replaced by a small one.
void Ustal_momenty(Stan_przypadku& s);
/// Eccentricities under the axial force N kG, their direction, and the plate's geometry.
void Ustal_mimosrody(Stan_przypadku& s, Double N);
/// True where the resultant lies outside the rhombic kern of the plate.
bool Poza_rdzeniem(Stan_przypadku& s);
/// What a neutral line that was found gives: its ends, the anchors in tension, the concrete. An
/// anchor on the line is not in tension.
void stressesAtLine(const Stan_przypadku& s, const CaseInput& in, Carry& carry, CaseResult& result);

} // namespace ferna
