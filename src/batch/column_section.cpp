#include "batch/column_section.h"

namespace ferna::batch {

namespace {

Json resultJson(const StaticsForm& form) {
    Json list = Json::array();
    for (const QString& line : form.lstObciazen)
        list.push_back(line.toStdString());
    Json result;
    result["N"] = form.totals.N.toStdString();
    result["M1"] = form.totals.M1.toStdString();
    result["M2"] = form.totals.M2.toStdString();
    result["Vx"] = form.totals.Vx.toStdString();
    result["Vy"] = form.totals.Vy.toStdString();
    result["lista"] = std::move(list);
    return result;
}

} // namespace

SectionResult runColumnTask(const ColumnTask& task, Stan& stan, InputFields& fields) {
    const DeclaredLoads done = declareLoads(task, stan, fields);
    return {resultJson(done.form), done.failure ? errorJson(*done.failure) : Json()};
}

} // namespace ferna::batch
