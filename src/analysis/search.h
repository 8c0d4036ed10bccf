#pragma once

#include "analysis/equilibrium.h"

namespace ferna {

// The search for the neutral line: two nested marches with shrinking steps, each closed by one
// linear interpolation at a change of sign. The tolerances are absolute moments in kG cm and do not
// scale with the load. After a search `C_linii` lies one interpolation ahead of the evaluation that
// k, the resultants and the zone belong to; that correction is part of the results.

/// The distance `C_linii` for the angle `Beta`. Sets `Jest_rozw` false and returns where the angle
/// is outside 0..pi/2. A cold start marches from the present distance; with `Drugie_wejscie` = 1
/// the march starts behind the distance of the previous angle.
void Szukaj_c(Stan_przypadku& s, const CaseInput& in);

/// The angle `Beta`, from the present one. Ends with `Jest_rozw` true, or false where the angle
/// left its range.
void Szukaj_beta(Stan_przypadku& s, const CaseInput& in);

/// What is tried after a failed attempt.
enum class Retry { None, RaisedMoment, MovedAnchor };

/// What follows a failed attempt: first the smaller moment of the case grows by a tenth; then, once
/// in a calculation, the last anchor moves towards the centre by 0.5 % and stays there; then the
/// case is given up. Leaves `Jest_rozw` false and adds what is to be said.
Retry Ponow_probe(Stan_przypadku& s, Carry& carry, std::vector<CaseMessage>& messages);

} // namespace ferna
