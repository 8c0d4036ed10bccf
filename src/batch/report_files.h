#pragma once

#include "batch/output_files.h"
#include "batch/task_run.h"

#include <QStringList>

namespace ferna::batch {

/// File endings of the reports that can be written, with their point.
QStringList reportEndings();

/// True where the file's ending is one of them.
bool isReportFile(const QString& file);

/// True where the report of the file's ending shows pictures, which the run has to make.
bool needsPictures(const QString& file);

/// Puts the delivered pictures of the report into a folder. Errors of `readFileWhole` and
/// `writeFileWhole`.
void deliverPictures(const QString& dataFolder, const QString& folder);

/// Writes the report of a computed task; its ending chooses the format. `pictures` is the folder
/// where the run has left the pictures. A report of one picture file a page takes the file's name
/// where it has one page; those of several stand under names of their own, "F-strona-1-z-3.svg" for
/// "F.svg", and each is claimed in `outputs` before the first is written. Returns what is to be
/// told of it (English), mostly nothing. Errors of `writeFileWhole`, `OutputFiles` and the
/// renderer.
QString writeReport(const ComputedTask& done, const QString& file, const QString& pictures,
                    OutputFiles& outputs);

} // namespace ferna::batch
