#include "batch/plate_section.h"

namespace ferna::batch {

PlateSectionResult runPlateTask(const PlateTask& task, Stan& stan, Dialogs& dialogs) {
    WorkedPlate done = workPlate(task, stan, dialogs);
    return {{done.failure ? errorJson(*done.failure) : Json()},
            done.form.fields.Text4,
            std::move(done.section),
            std::move(done.facts)};
}

void writeSection(JsonWriter& json, const Stan& stan, const PlateSectionResult& result) {
    const Stan_raportu& report = stan.raport;
    json.beginObject();
    json.key("Spr_blachy");
    json.beginArray();
    for (int n = 1; n <= PlateChecks; ++n)
        json.whole(report.Spr_blachy(n));
    json.endArray();
    json.key("Fd_blachy");
    json.number(stan.materialy.Fd_blachy);
    json.key("Grubosc");
    json.text(result.Grubosc);
    json.key("Wiersze_blachy");
    json.beginArray();
    if (report.Liczba_wierszy_blachy > 0)
        for (int i = 0; i <= report.Liczba_wierszy_blachy; ++i)
            json.text(report.Wiersze_blachy(i));
    json.endArray();
    json.endObject();
}

} // namespace ferna::batch
