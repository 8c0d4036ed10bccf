#pragma once

#include "combinations/digest.h"
#include "notes/record.h"
#include "report/forms/FernaWyn.h"
#include "sheet/sheet_input.h"

#include <functional>
#include <optional>

namespace ferna {

/// The table of combinations that the load cases of a calculation are rows of; empty where they are
/// none.
using DigestOfCases = std::function<std::optional<combinations::Digest>()>;

/// Adds the entry of the calculation sheet to the menu "&Więcej" of the results form. The record is
/// that of the calculation whose results the form shows.
void addSheetEntry(FernaWyn& results, const Stan& stan, notes::Record& record, Dialogs& dialogs,
                   DigestOfCases digest = {});

/// Asks where to save, calculates the rows taken from a table of combinations as Oblicz would after
/// a start of the program, and writes their sheet with the table's digest. What is entered stays
/// as it is. The file's name; none where that was cancelled.
std::optional<QString> saveSheetOf(const combinations::Digest& digest, const Stan& stan,
                                   const InputFields& fields, Dialogs& dialogs);

/// Asks for a file and saves the sheet there in the format of its ending; the program and the time
/// are filled in. The file written; none where the question was cancelled.
std::optional<QString> askAndSaveSheet(const sheet::SheetInput& input, Dialogs& dialogs);

} // namespace ferna
