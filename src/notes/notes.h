#pragma once

#include "notes/note.h"
#include "notes/record.h"

namespace ferna::notes {

/// Everything that an engineer must be told about a calculation, solved or refused, in order.
/// Nothing before it has begun.
Notes notesOf(const Record& record);

/// What is doubtful about the input alone, in order. While it has no anchors its cases are not
/// judged: they are still to come.
Notes notesOf(const Entered& entered);

/// For a calculation without results, a refused one or one that was given up: what is to be told of
/// its cases, with the exact stresses also of those that need no note, and what is doubtful about
/// the input as it stands now. Empty where there are results, or where the refusal had nothing to
/// do with a case.
Notes notesInPlaceOfResults(const Record& record, const Entered& now);

} // namespace ferna::notes
