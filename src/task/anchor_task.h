#pragma once

#include "design/stan.h"
#include "runtime/dialogs.h"
#include "selection/selection_form.h"
#include "task/object_reader.h"

namespace ferna {

/// The key "Kotwa" of a task.
struct AnchorTask {
    int tab = 0;   ///< 0 hooked, 1 plate anchor
    QString typed; ///< combined thickness, as typed into the input box

    bool operator==(const AnchorTask&) const = default;
};

/// Throws TaskError.
AnchorTask readAnchorTask(const TaskValue& value, const std::string& path = "Kotwa");

/// The key's value. A text that is no number becomes 0, as the form takes it.
Json anchorTaskJson(const AnchorTask& task);

/// Opens the selection on the results in the state, types the thickness, brings the tab to the
/// front and confirms. Empty where the menu does not offer the selection; after a failed loading
/// the report has no lines of it. The form is as it stood in the end.
std::optional<SelectionForm> selectAnchor(const AnchorTask& task, Stan& stan,
                                          ScriptedDialogs& dialogs);

} // namespace ferna
