#pragma once

#include "notes/record.h"
#include "utilisation/utilisation.h"

namespace ferna::live {

/// The checks of the cases as the calculation has told them, by case - 1; empty where a case has no
/// results.
using ToldChecks = std::array<std::optional<Utilisation>, MaxCases>;

/// Formed of the results that the last calculation has left. Empty all where it has not begun, or
/// where it had no strengths.
ToldChecks toldChecks(const notes::Record& record, const Stan& stan);

/// True where two utilisations differ by more than 2 % of the larger one. Less than a thousandth
/// counts as nothing.
bool differ(Double told, Double exact);

} // namespace ferna::live
