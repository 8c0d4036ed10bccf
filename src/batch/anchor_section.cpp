#include "batch/anchor_section.h"

namespace ferna::batch {

SectionResult runAnchorTask(const AnchorTask& task, Stan& stan, ScriptedDialogs& dialogs) {
    const std::optional<SelectionForm> form = selectAnchor(task, stan, dialogs);
    if (!form)
        return {};
    Json lines = Json::array();
    for (int i = 1; i <= stan.raport.Liczba_wierszy_kotwy; ++i)
        lines.push_back(stan.raport.Wiersze_kotwy(i).toStdString());
    SectionResult result;
    result.value["Wiersze_kotwy"] = std::move(lines);
    result.value["Typ_szkicu_kotwy"] = stan.raport.Typ_szkicu_kotwy;
    result.value["Nosnosc"] = Double{form->Nosnosc};
    return result;
}

} // namespace ferna::batch
