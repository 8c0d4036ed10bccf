#pragma once

#include "sheet/sheet.h"
#include "sheet/sheet_input.h"

namespace ferna::sheet {

/// The calculation sheet of a calculation, in the language of the task. Every number on it holds
/// its value in full and, where it is computed, the formula that gives it from the others. Computes
/// nothing of its own: it asks the descriptions of the clauses.
Sheet makeSheet(const SheetInput& input);

} // namespace ferna::sheet
