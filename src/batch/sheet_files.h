#pragma once

#include "batch/task_run.h"
#include "combinations/digest.h"
#include "sheet/sheet.h"

#include <QStringList>

namespace ferna::batch {

/// File endings of the sheets that can be written, with their point.
QStringList sheetEndings();

/// True where the file's ending is one of them.
bool isSheetFile(const QString& file);

/// The calculation sheet of a task, solved or not; with the table whose rows its load cases are,
/// where they are.
sheet::Sheet sheetOf(const ComputedTask& done, const combinations::Digest* table = nullptr);

/// Writes the calculation sheet of a task, solved or not; its ending chooses the format. Errors of
/// the sheet's writers.
void writeSheet(const ComputedTask& done, const QString& file);

} // namespace ferna::batch
