#include "task/anchor_task.h"

namespace ferna {

AnchorTask readAnchorTask(const TaskValue& value, const std::string& path) {
    ObjectReader object(value, path, {"rodzaj", "g"});
    object.required("g");
    return {object.oneOf("rodzaj", {"F", "P"}) == "P" ? 1 : 0,
            object.wholeFieldText("g").value_or(QString())};
}

std::optional<SelectionForm> selectAnchor(const AnchorTask& task, Stan& stan,
                                          ScriptedDialogs& dialogs) {
    if (!anchorSelectionOffered(stan))
        return std::nullopt;
    dialogs.answers.push_back(task.typed);
    SelectionForm form;
    if (loadSelection(stan, form, dialogs)) {
        bringToFront(form, task.tab);
        acceptSelection(stan, form);
    }
    return form;
}

} // namespace ferna
