#pragma once

#include "notes/note.h"
#include "task/object_reader.h"

namespace ferna::batch {

/// The key "Uwagi" of a result. Keys that do not apply to a note are left out.
Json notesJson(const notes::Notes& notes);

} // namespace ferna::batch
