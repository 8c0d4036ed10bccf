#include "batch/equilibrium_section.h"
#include "batch/note_section.h"
#include "batch/task_run.h"

#include <charconv>
#include <string_view>

namespace ferna::batch {

namespace {

/// The shortest decimal that reads back to the same Single.
Json single(Single value) {
    char digits[32];
    const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    Double shortest = 0;
    std::from_chars(digits, end, shortest);
    return shortest;
}

Json text(const QString& value) {
    return value.toStdString();
}

Json materialsOf(const Stan& stan) {
    const Materialy& m = stan.materialy;
    return {{"Fd_kotwy", single(m.Fd_kotwy)},
            {"Fd2_kotwy", single(m.Fd2_kotwy)},
            {"Fv_kotwy", single(m.Fv_kotwy)},
            {"Klasa_stali", text(m.Klasa_stali)},
            {"Nazwa_betonu", text(m.Nazwa_betonu)},
            {"Rb_betonu", single(m.Rb_betonu)},
            {"Eb_betonu", single(m.Eb_betonu)},
            {"Wsp_n_val", single(stan.opcje.Wsp_n_val)},
            {"Mnoznik_dlugosci", single(m.Mnoznik_dlugosci)},
            {"Wsp_dlugosci", single(m.Wsp_dlugosci)}};
}

Json caseOf(const ComputedTask& done, int c) {
    const Stan& stan = done.task.stan;
    const Wyniki& r = stan.wyniki;
    const CaseTrace& trace = done.traces.at(static_cast<std::size_t>(c));
    Json lines = Json::array();
    Json marks = Json::array();
    for (int i = trace.firstLine; i <= trace.lastLine; ++i) {
        lines.push_back(text(r.Wiersze_wynikow(i)));
        marks.push_back(r.Znak_wiersza(i));
    }
    Json stresses = Json::array();
    for (int i = 1; i <= stan.plyta.Liczba_srub; ++i)
        stresses.push_back(single(r.Sigma_kotwy(i)(c)));
    const auto line = [&trace](Double value) { return trace.wholePlate ? Json() : Json(value); };
    const bool zoneLine = done.reportReady && !trace.wholePlate;
    return {{"Przyp_policzony", trace.wholePlate},
            {"Typ_strefy_przyp", r.Typ_strefy_przyp(c)},
            {"Klasa_znaku", stan.obciazenia.Klasa_znaku(c)},
            {"Przec_a", single(r.Przec_a(c))},
            {"Przec_b", single(r.Przec_b(c))},
            {"Przec_c", single(r.Przec_c(c))},
            {"Przec_d", single(r.Przec_d(c))},
            {"Sigma_b", single(r.Sigma_b(c))},
            {"Sigma_kotwy", std::move(stresses)},
            {"Beta", line(trace.Beta)},
            {"C_linii", line(trace.C_linii)},
            {"Wsp_k", line(trace.Wsp_k)},
            {"Wiersze", std::move(lines)},
            {"Znaki", std::move(marks)},
            {"Wiersz_strefy", zoneLine ? text(done.raport.Wiersze_strefy(c - 1)) : Json()}};
}

void addResults(Json& result, const ComputedTask& done) {
    const Stan& stan = done.task.stan;
    const Wyniki& r = stan.wyniki;
    result["Materialy"] = materialsOf(stan);
    result["Fi_max"] = stan.plyta.Fi_max;
    Json& cases = result["Przypadki"] = Json::array();
    for (int c = 1; c <= stan.obciazenia.Liczba_przyp; ++c)
        cases.push_back(caseOf(done, c));
    result["Sigma_b_max"] = single(r.Sigma_b_max);
    result["Sigma_s_max"] = single(r.Sigma_s_max);
    result["Sila_kotwy_max"] = single(r.Sila_kotwy_max);
    result["Nr_kotwy_max"] = r.Nr_kotwy_max;
    result["Kotwy_OK"] = r.Kotwy_OK != False;
    Json& ratios = result["Tekst_przekroczenia"] = Json::array();
    for (int i = 1; i <= r.Liczba_przekroczen; ++i)
        ratios.push_back(text(r.Tekst_przekroczenia(i)));
    Json& places = result["Wspolrzedne"] = Json::array();
    for (int i = 1; i <= stan.plyta.Liczba_srub; ++i)
        places.push_back({single(stan.plyta.X_kotwy(i)), single(stan.plyta.Y_kotwy(i))});
}

} // namespace

Json resultOf(const ComputedTask& done) {
    Json result = Json::object();
    Json& messages = result["Komunikaty"] = Json::array();
    for (const ScriptedDialogs::Box& box : done.dialogs.messages)
        messages.push_back({{"tytul", text(box.title)}, {"tekst", text(box.text)}});
    result["Blad"] = done.failure;
    result["Obliczone"] = done.computed;
    result["Przerwij_obliczenia"] = done.solver.Przerwij_obliczenia;
    if (done.computed)
        addResults(result, done);
    result.update(done.sections);
    result["Rownowaga"] = equilibriaJson(done.equilibria);
    result["Uwagi"] = notesJson(notes::notesOf(done.record));
    return result;
}

Json resultOfRefused(const std::string& why) {
    return {{"Blad", {{"numer", 0}, {"tekst", why}}}};
}

} // namespace ferna::batch
