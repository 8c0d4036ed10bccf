#pragma once

#include "batch/json_writer.h"
#include "batch/section_json.h"
#include "task/column_task.h"

namespace ferna::batch {

struct ColumnSectionResult : SectionResult {
    LoadRow<QString> totals; ///< as the form shows them
    QStringList lstObciazen; ///< the lines of its list
};

/// The key "Slup" of a task, worked (`declareLoads`).
ColumnSectionResult runColumnTask(const ColumnTask& task, Stan& stan, InputFields& fields);

/// The key "Slup" of a result: the totals "N", "M1", "M2", "Vx", "Vy" and the lines of the list,
/// "lista", all as texts.
void writeSection(JsonWriter& json, const ColumnSectionResult& result);

} // namespace ferna::batch
