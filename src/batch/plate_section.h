#pragma once

#include "batch/section_json.h"
#include "task/plate_task.h"

namespace ferna::batch {

struct PlateSectionResult : SectionResult {
    std::optional<PlateSection> section; ///< empty where nothing entered the report
    notes::PlateFacts facts;             ///< what the notes go by
};

/// The key "Blacha" of a task, worked (`workPlate`). The result has "Spr_blachy", "Fd_blachy",
/// "Grubosc" and "Wiersze_blachy".
PlateSectionResult runPlateTask(const PlateTask& task, Stan& stan, Dialogs& dialogs);

} // namespace ferna::batch
