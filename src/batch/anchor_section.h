#pragma once

#include "batch/json_writer.h"
#include "batch/section_json.h"
#include "task/anchor_task.h"

namespace ferna::batch {

struct AnchorSectionResult : SectionResult {
    std::optional<Single> Nosnosc; ///< capacity, kN; empty where the menu offers no selection
};

/// The key "Kotwa" of a task, worked (`selectAnchor`).
AnchorSectionResult runAnchorTask(const AnchorTask& task, Stan& stan, ScriptedDialogs& dialogs);

/// The key "Kotwa" of a result, with the state as the section left it: "Wiersze_kotwy",
/// "Typ_szkicu_kotwy" and "Nosnosc", or null.
void writeSection(JsonWriter& json, const Stan& stan, const AnchorSectionResult& result);

} // namespace ferna::batch
