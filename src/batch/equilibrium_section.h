#pragma once

#include "batch/object_reader.h"
#include "command/entered_equilibria.h"

namespace ferna::batch {

/// The key "Rownowaga" of a result: null where the task gives no areas, else one object a case, in
/// order.
Json equilibriaJson(const EnteredEquilibria& found);

} // namespace ferna::batch
