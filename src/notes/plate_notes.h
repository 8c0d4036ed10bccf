#pragma once

#include "notes/note.h"
#include "notes/record.h"

namespace ferna::notes {

/// Checks of the plate that gave nothing, an accepted thickness without a check behind it, forces
/// and pressures that were typed too small.
Notes plateNotes(const PlateFacts& facts);

} // namespace ferna::notes
