#pragma once

#include "batch/section_json.h"
#include "design/stan.h"
#include "runtime/dialogs.h"

namespace ferna::batch {

/// The key "Kotwa" of a task.
struct AnchorTask {
    int tab = 0;   ///< 0 hooked, 1 plate anchor
    QString typed; ///< combined thickness, as typed into the input box
};

/// Throws TaskError.
AnchorTask readAnchorTask(const TaskValue& value, const std::string& path = "Kotwa");

/// Opens the selection on the results in the state, types the thickness, brings the tab to the
/// front and confirms. The result has "Wiersze_kotwy", "Typ_szkicu_kotwy" and "Nosnosc"; it is null
/// where the menu does not offer the selection. After a failed loading there are no lines.
SectionResult runAnchorTask(const AnchorTask& task, Stan& stan, ScriptedDialogs& dialogs);

} // namespace ferna::batch
