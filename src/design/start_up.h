#pragma once

#include "design/input_fields.h"

namespace ferna {

/// The configuration, which holds the last task.
inline const QString taskFile = QStringLiteral("Ferna.cfg");

/// What a start forgets: marks of whole-plate cases and the user's steel.
void clearForStart(Stan& stan);

/// Reads the last task and sets what follows from it: the concrete and the ratio n. Errors of
/// `Czytaj_cfg`; the state is then as it was.
void readLastTask(Stan& stan, const QString& folder);

/// Brings the state to where the main form finds it: marks of whole-plate cases cleared, the last
/// task and the catalogue of its language read, the concrete and the ratio n set. `folder` is the
/// program folder. Errors of `Czytaj_cfg` and `Czytaj_teksty`; the state is then as far as it got.
void startUp(Stan& stan, const QString& folder);

/// The texts of the main form's fields for the task in the state.
InputFields startFields(const Stan& stan);

} // namespace ferna
