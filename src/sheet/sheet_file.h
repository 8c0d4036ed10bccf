#pragma once

#include "sheet/sheet.h"

namespace ferna::sheet {

/// File endings of the formats of a sheet, with their point.
QStringList sheetEndings();

/// True where the file's ending is one of them.
bool isSheetFile(const QString& file);

/// Writes a sheet, whole or not at all; the ending chooses the format. Errors of `writeFileWhole`,
/// for
/// ".docx" of the word processor: 429 where it is missing, which says what to install.
void saveSheet(const Sheet& sheet, const QString& file);

} // namespace ferna::sheet
