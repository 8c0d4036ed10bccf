#pragma once

#include "batch/section_json.h"
#include "task/column_task.h"

namespace ferna::batch {

/// The key "Slup" of a task, worked (`declareLoads`). The result has the totals "N", "M1", "M2",
/// "Vx", "Vy" and the lines of the list, "lista", all as texts.
SectionResult runColumnTask(const ColumnTask& task, Stan& stan, InputFields& fields);

} // namespace ferna::batch
