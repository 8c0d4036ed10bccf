#include "batch/anchor_section.h"

#include "selection/selection_form.h"

namespace ferna::batch {

AnchorTask readAnchorTask(const TaskValue& value, const std::string& path) {
    ObjectReader object(value, path, {"rodzaj", "g"});
    object.required("g");
    return {object.oneOf("rodzaj", {"F", "P"}) == "P" ? 1 : 0,
            object.wholeFieldText("g").value_or(QString())};
}

SectionResult runAnchorTask(const AnchorTask& task, Stan& stan, ScriptedDialogs& dialogs) {
    if (!anchorSelectionOffered(stan))
        return {};
    dialogs.answers.push_back(task.typed);
    SelectionForm form;
    if (loadSelection(stan, form, dialogs)) {
        bringToFront(form, task.tab);
        acceptSelection(stan, form);
    }
    Json lines = Json::array();
    for (int i = 1; i <= stan.raport.Liczba_wierszy_kotwy; ++i)
        lines.push_back(stan.raport.Wiersze_kotwy(i).toStdString());
    SectionResult result;
    result.value["Wiersze_kotwy"] = std::move(lines);
    result.value["Typ_szkicu_kotwy"] = stan.raport.Typ_szkicu_kotwy;
    result.value["Nosnosc"] = Double{form.Nosnosc};
    return result;
}

} // namespace ferna::batch
