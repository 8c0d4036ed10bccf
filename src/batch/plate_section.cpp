#include "batch/plate_section.h"

namespace ferna::batch {

namespace {

Json linesJson(const Stan_raportu& report) {
    Json lines = Json::array();
    if (report.Liczba_wierszy_blachy > 0)
        for (int i = 0; i <= report.Liczba_wierszy_blachy; ++i)
            lines.push_back(report.Wiersze_blachy(i).toStdString());
    return lines;
}

Json resultJson(const Stan& stan, const PlateForm& form) {
    Json results = Json::array();
    for (int n = 1; n <= PlateChecks; ++n)
        results.push_back(stan.raport.Spr_blachy(n));
    Json section;
    section["Spr_blachy"] = std::move(results);
    section["Fd_blachy"] = Double{stan.materialy.Fd_blachy};
    section["Grubosc"] = form.fields.Text4.toStdString();
    section["Wiersze_blachy"] = linesJson(stan.raport);
    return section;
}

} // namespace

PlateSectionResult runPlateTask(const PlateTask& task, Stan& stan, Dialogs& dialogs) {
    WorkedPlate done = workPlate(task, stan, dialogs);
    return {{resultJson(stan, done.form), done.failure ? errorJson(*done.failure) : Json()},
            std::move(done.section),
            std::move(done.facts)};
}

} // namespace ferna::batch
