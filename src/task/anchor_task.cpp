#include "task/anchor_task.h"

#include "task/json_text.h"

namespace ferna {

AnchorTask readAnchorTask(const TaskValue& value, const std::string& path) {
    ObjectReader object(value, path, {"rodzaj", "g"});
    object.required("g");
    return {object.oneOf("rodzaj", {"F", "P"}) == "P" ? 1 : 0,
            object.wholeFieldText("g").value_or(QString())};
}

Json anchorTaskJson(const AnchorTask& task) {
    return {{"rodzaj", task.tab == 1 ? "P" : "F"},
            {"g", jsonNumber(numberIn(task.typed).value_or(0))}};
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
