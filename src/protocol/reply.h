#pragma once

#include "runtime/numbers.h"
#include "runtime/saved_file.h"

#include <QString>

namespace ferna {

/// What the renderer reported as its last act.
struct RendererReply {
    Single printed = 0;   ///< above 0: pages were made
    Integer nextPage = 0; ///< number of the next free page
};

/// Leaves the reply file in the folder: 1 and the next free page number after a run that did its
/// work, 0 and the job's own after one that failed. Errors of `writeFileWhole`.
void writeReply(const QString& folder, bool done, int nextPage);

/// The same, to be installed later.
FileAhead replyAhead(const QString& folder, bool done, int nextPage);

/// The reply file of the renderer: two values, separated by a comma or a line end.
/// Errors of the field reader.
RendererReply readRendererReply(const QString& path);

} // namespace ferna
