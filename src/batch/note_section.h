#pragma once

#include "batch/json_writer.h"
#include "notes/note.h"

namespace ferna::batch {

/// The key "Uwagi" of a result. Keys that do not apply to a note are left out.
void writeNotes(JsonWriter& json, const notes::Notes& notes);

} // namespace ferna::batch
