#pragma once

#include "notes/note.h"
#include "notes/record.h"

namespace ferna::notes {

/// Everything that an engineer must be told about a calculation, solved or refused, in order.
/// Nothing before it has begun.
Notes notesOf(const Record& record);

/// What is doubtful about the input alone, in order.
Notes notesOf(const Entered& entered);

/// For a calculation without results, a refused one or one that was given up: what `notesOf` tells,
/// with the exact stresses also of each case that it leaves out. Empty where there are results, or
/// where the refusal had nothing to do with a case.
Notes notesInPlaceOfResults(const Record& record);

} // namespace ferna::notes
