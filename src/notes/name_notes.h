#pragma once

#include "notes/note.h"
#include "notes/record.h"

namespace ferna::notes {

/// Names that lose something on their way into the report.
Notes nameNotes(const Entered& entered);
/// The label of the footing, as typed.
Notes labelNotes(const QString& label);
/// The steel of the plate, empty where it is none of the user's.
Notes plateSteelNotes(const QString& name);

} // namespace ferna::notes
