#pragma once

#include "notes/note.h"
#include "notes/record.h"

namespace ferna::notes {

/// Anchors in one place, off the plate, off the series, listed where they are not computed; no load
/// case at all; cases without an equilibrium.
Notes inputNotes(const Entered& entered);

} // namespace ferna::notes
