#include "batch/column_section.h"

namespace ferna::batch {

ColumnSectionResult runColumnTask(const ColumnTask& task, Stan& stan, InputFields& fields) {
    DeclaredLoads done = declareLoads(task, stan, fields);
    return {{done.failure ? errorJson(*done.failure) : Json()},
            std::move(done.form.totals),
            std::move(done.form.lstObciazen)};
}

void writeSection(JsonWriter& json, const ColumnSectionResult& result) {
    const auto total = [&json](std::string_view key, const QString& text) {
        json.key(key);
        json.text(text);
    };
    json.beginObject();
    total("N", result.totals.N);
    total("M1", result.totals.M1);
    total("M2", result.totals.M2);
    total("Vx", result.totals.Vx);
    total("Vy", result.totals.Vy);
    json.key("lista");
    json.beginArray();
    for (const QString& line : result.lstObciazen)
        json.text(line);
    json.endArray();
    json.endObject();
}

} // namespace ferna::batch
