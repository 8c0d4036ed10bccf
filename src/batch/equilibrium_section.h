#pragma once

#include "batch/json_writer.h"
#include "command/entered_equilibria.h"

namespace ferna::batch {

/// The value of the key "Rownowaga" of a result: null where the task gives no areas, else one
/// object a case, in order.
void writeEquilibria(JsonWriter& json, const EnteredEquilibria& found);

} // namespace ferna::batch
