#pragma once

#include "design/input_fields.h"

#include <optional>

namespace ferna {

/// What the checks of a case are held against. Strengths in MPa.
struct CheckLimits {
    Double Rb = 0;  ///< concrete in compression; up to its double is borne
    Double fd = 0;  ///< anchor in tension
    Double fd2 = 0; ///< tensile term of the interaction
    Double fv = 0;  ///< anchor in shear
    /// The shear goes to the anchors on the tension side alone; else to all, with their tension.
    bool tensionSideAlone = false;
};

/// The limits that a calculation of what is entered would take: steel for the largest diameter of
/// the layout, concrete of the norm and kind of footing. Empty where the steel has no strength for
/// that diameter, or where the user's steel has not been described.
std::optional<CheckLimits> enteredLimits(const Stan& stan, const InputFields& fields);

} // namespace ferna
