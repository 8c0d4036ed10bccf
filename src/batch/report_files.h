#pragma once

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
/// where the run has left the pictures. Returns what is to be told of it (English), mostly nothing.
/// Errors of `writeFileWhole` and of the renderer.
QString writeReport(const ComputedTask& done, const QString& file, const QString& pictures);

} // namespace ferna::batch
