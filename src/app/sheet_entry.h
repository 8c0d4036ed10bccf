#pragma once

#include "notes/record.h"
#include "report/forms/FernaWyn.h"
#include "sheet/sheet_input.h"

namespace ferna {

/// Adds the entry of the calculation sheet to the menu "&Więcej" of the results form. The record is
/// that of the calculation whose results the form shows.
void addSheetEntry(FernaWyn& results, const Stan& stan, notes::Record& record, Dialogs& dialogs);

/// Asks for a file and saves the sheet there in the format of its ending; the program and the time
/// are filled in. The file written; none where the question was cancelled.
std::optional<QString> askAndSaveSheet(const sheet::SheetInput& input, Dialogs& dialogs);

} // namespace ferna
