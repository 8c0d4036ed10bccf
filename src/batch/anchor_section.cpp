#include "batch/anchor_section.h"

namespace ferna::batch {

AnchorSectionResult runAnchorTask(const AnchorTask& task, Stan& stan, ScriptedDialogs& dialogs) {
    const std::optional<SelectionForm> form = selectAnchor(task, stan, dialogs);
    return {{}, form ? std::optional(form->Nosnosc) : std::nullopt};
}

void writeSection(JsonWriter& json, const Stan& stan, const AnchorSectionResult& result) {
    if (!result.Nosnosc) {
        json.null();
        return;
    }
    json.beginObject();
    json.key("Wiersze_kotwy");
    json.beginArray();
    for (int i = 1; i <= stan.raport.Liczba_wierszy_kotwy; ++i)
        json.text(stan.raport.Wiersze_kotwy(i));
    json.endArray();
    json.key("Typ_szkicu_kotwy");
    json.whole(stan.raport.Typ_szkicu_kotwy);
    json.key("Nosnosc");
    json.number(*result.Nosnosc);
    json.endObject();
}

} // namespace ferna::batch
