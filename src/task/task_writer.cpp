#include "design/material_tables.h"
#include "runtime/format.h"
#include "task/json_text.h"
#include "task/task.h"
#include "task/typed_fields.h"

namespace ferna {

namespace {

/// True where a task holds a number only if it is a whole one of 16 bits.
bool isWholeKey(const std::string& key) {
    return key == "Nr_strony" || key == "Dlug_plyty_mm" || key == "Szer_plyty_mm";
}

/// The number of a typed text, as far as its key can hold it.
std::optional<double> holdable(const std::string& key, const QString& text) {
    const std::optional<double> value = numberIn(text);
    const bool isWhole = value && *value == Int(*value) && *value >= -32768 && *value <= 32767;
    return isWholeKey(key) && !isWhole ? std::nullopt : value;
}

/// What stands for the number of a text that is none.
Json numberFor(const std::string& key, const QString& text) {
    return jsonNumber(holdable(key, text).value_or(0));
}

QString computedRatio(const Task& task) {
    const Opcje_zadania& options = task.stan.opcje;
    return Format(ratioN(concrete(options.Nr_normy, options.Nr_betonu).Eb_betonu), u"###.##");
}

void writeOptions(Json& out, const Task& task) {
    const Opcje_zadania& options = task.stan.opcje;
    const InputFields& fields = task.fields;
    out["Nazwa_projektu"] = fields.txtNaz_proj.toStdString();
    out["Nazwa_stopy"] = task.Nazwa_stopy.toStdString();
    out["Nr_strony"] = numberFor("Nr_strony", fields.txtNr_strony);
    out["Nr_normy"] = options.Nr_normy;
    out["Nr_jezyka"] = options.Nr_jezyka;
    out["Tryb_RTF"] = options.Tryb_RTF;
    out["Hsily_wszystkie"] = fields.optHsruby_0 ? 0 : 1;
    out["Tryb_wsp_n"] = options.Tryb_wsp_n;
    if (options.Tryb_wsp_n == 1)
        out["Wsp_n_val"] = numberFor("Wsp_n_val", fields.Text2);
    out["Nr_betonu"] = options.Nr_betonu;
    out["Stopa_betonowa"] = fields.Option1_0 ? 0 : 1;
    out["Nr_stali"] = fields.cmbStal >= 0 ? fields.cmbStal + 1 : int{options.Nr_stali};
}

/// The user's steel where it is chosen or something is remembered of it.
void writeSteel(Json& out, const Task& task) {
    const Materialy& m = task.stan.materialy;
    const bool isRemembered = !m.Stal_nazwa.isEmpty() || m.Stal_fd != 0 || m.Stal_fi_max != 0
                              || m.Stal_Re != 0 || m.Stal_Rm != 0;
    if (!isRemembered)
        return;
    const auto single = [](Single value) {
        return jsonNumber(numberIn(general(value)).value_or(0));
    };
    out["Stal"] = {{"Stal_nazwa", m.Stal_nazwa.toStdString()},
                   {"Stal_fd", single(m.Stal_fd)},
                   {"Stal_fi_max", m.Stal_fi_max},
                   {"Stal_Re", single(m.Stal_Re)},
                   {"Stal_Rm", single(m.Stal_Rm)}};
}

/// The anchors where they are computed, in whole millimetres.
void writeAnchors(Json& out, const Plyta_i_kotwy& plate) {
    Json& anchors = out["Kotwy"] = Json::array();
    const auto millimetres = [](Single cm) { return CInt(qBound(-32767.0, cm * 10.0, 32767.0)); };
    for (int i = 1; i <= qMin<int>(plate.Liczba_srub, MaxAnchors); ++i)
        anchors.push_back({{"x", millimetres(plate.X_kotwy(i))},
                           {"y", millimetres(plate.Y_kotwy(i))},
                           {"fi", plate.Fi_kotwy(i)}});
}

Json rowJson(const LoadRow<QString>& row) {
    const auto number = [](const QString& text) { return numberFor("Przypadki", text); };
    return {{"N", number(row.N)},
            {"M1", number(row.M1)},
            {"M2", number(row.M2)},
            {"Vx", number(row.Vx)},
            {"Vy", number(row.Vy)}};
}

int casesOf(const Task& task) {
    return qBound(1, int{task.stan.obciazenia.Liczba_przyp}, MaxCases);
}

void writeCases(Json& out, const Task& task) {
    Json& cases = out["Przypadki"] = Json::array();
    for (int c = 0; c < casesOf(task); ++c)
        cases.push_back(rowJson(task.fields.loads.at(static_cast<std::size_t>(c))));
}

/// True for a row that nobody has typed: empty, or as the form first shows it.
bool isUntouched(const LoadRow<QString>& row) {
    const auto isZero = [](const QString& text) { return text.isEmpty() || text == u"0"; };
    return (isZero(row.N) || row.N == u"100") && isZero(row.M1) && isZero(row.M2) && isZero(row.Vx)
           && isZero(row.Vy);
}

/// The typed texts that the numbers of the other keys do not give back.
void writeTyped(Json& out, const Task& task) {
    InputFields kept = task.fields;
    for (std::size_t r = static_cast<std::size_t>(casesOf(task)); r < kept.loads.size(); ++r)
        if (isUntouched(kept.loads.at(r)))
            kept.loads.at(r) = {};
    const std::string ratio = keyOfValue({Value::RatioN});
    const std::string behind = keyOfValue({Value::N, casesOf(task)});
    bool isBehind = false;
    forTypedFields(kept, [&](const std::string& key, const QString& text) {
        isBehind = isBehind || key == behind;
        bool isHeld = isBehind ? text.isEmpty() : holdable(key, text).has_value();
        if (key == ratio && task.stan.opcje.Tryb_wsp_n != 1)
            isHeld = text == computedRatio(task);
        if (!isHeld)
            out["Wpisane"][key] = text.toStdString();
    });
}

} // namespace

std::string taskText(const Task& task) {
    Json out = Json::object();
    writeOptions(out, task);
    writeSteel(out, task);
    out["Dlug_plyty_mm"] = numberFor("Dlug_plyty_mm", task.fields.Text3);
    out["Szer_plyty_mm"] = numberFor("Szer_plyty_mm", task.fields.Text4);
    writeAnchors(out, task.stan.plyta);
    writeCases(out, task);
    if (task.column && task.column->inCase <= casesOf(task)) {
        out["Slup"] = columnTaskJson(*task.column);
        if (task.column->inCase > 0)
            out["Slup_przypadek"] = task.column->inCase;
    }
    if (task.plate)
        out["Blacha"] = plateTaskJson(*task.plate);
    if (task.anchor)
        out["Kotwa"] = anchorTaskJson(*task.anchor);
    writeTyped(out, task);
    return readableText(out);
}

} // namespace ferna
