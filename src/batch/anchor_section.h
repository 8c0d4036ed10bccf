#pragma once

#include "batch/section_json.h"
#include "task/anchor_task.h"

namespace ferna::batch {

/// The key "Kotwa" of a task, worked (`selectAnchor`). The result has "Wiersze_kotwy",
/// "Typ_szkicu_kotwy" and "Nosnosc"; it is null where the menu does not offer the selection.
SectionResult runAnchorTask(const AnchorTask& task, Stan& stan, ScriptedDialogs& dialogs);

} // namespace ferna::batch
