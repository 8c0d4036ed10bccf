#pragma once

#include "batch/json_writer.h"
#include "batch/section_json.h"
#include "task/plate_task.h"

namespace ferna::batch {

struct PlateSectionResult : SectionResult {
    QString Grubosc;                     ///< accepted thickness, as it stands in its field
    std::optional<PlateSection> section; ///< empty where nothing entered the report
    notes::PlateFacts facts;             ///< what the notes go by
};

/// The key "Blacha" of a task, worked (`workPlate`).
PlateSectionResult runPlateTask(const PlateTask& task, Stan& stan, Dialogs& dialogs);

/// The key "Blacha" of a result, with the state as the section left it: "Spr_blachy", "Fd_blachy",
/// "Grubosc" and "Wiersze_blachy".
void writeSection(JsonWriter& json, const Stan& stan, const PlateSectionResult& result);

} // namespace ferna::batch
