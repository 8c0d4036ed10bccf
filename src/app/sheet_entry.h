#pragma once

#include "notes/record.h"
#include "report/forms/FernaWyn.h"

namespace ferna {

/// Adds the entry of the calculation sheet to the menu "&Więcej" of the results form. The record is
/// that of the calculation whose results the form shows.
void addSheetEntry(FernaWyn& results, const Stan& stan, notes::Record& record, Dialogs& dialogs);

} // namespace ferna
