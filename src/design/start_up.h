#pragma once

#include "design/input_fields.h"

namespace ferna {

/// Brings the state to where the main form finds it: marks of whole-plate cases cleared, the last
/// task and the catalogue of its language read, the concrete and the ratio n set. `folder` is the
/// program folder. Errors of `Czytaj_cfg` and `Czytaj_teksty`; the state is then as far as it got.
void startUp(Stan& stan, const QString& folder);

/// The texts of the main form's fields for the task in the state.
InputFields startFields(const Stan& stan);

} // namespace ferna
