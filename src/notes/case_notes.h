#pragma once

#include "notes/note.h"
#include "notes/record.h"

namespace ferna::notes {

/// What a case was told against what is exact, and how its solution came about.
Notes caseNotes(const Record& record, int c);

/// The exact stresses of a case and whether they pass; nothing where there are none.
Notes exactNote(const Record& record, int c);

} // namespace ferna::notes
