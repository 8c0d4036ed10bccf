#pragma once

#include "batch/output_files.h"
#include "batch/task_run.h"

namespace ferna::batch {

/// File endings of the view's pictures, with their point.
QStringList viewEndings();

/// True where the file's ending is one of them.
bool isViewFile(const QString& file);

/// Writes the view of a task as it was entered, solved or not: a picture of each case by the exact
/// equilibrium. One case takes the file's name; those of several stand under names of their own,
/// "F-przypadek-1-z-3.svg" for "F.svg", and each is claimed in `outputs` before the first is
/// written. Returns what is to be told of it, mostly nothing. Errors of `writeFileWhole` and
/// `OutputFiles`, 57.
QString writeView(const ComputedTask& done, const QString& file, OutputFiles& outputs);

} // namespace ferna::batch
