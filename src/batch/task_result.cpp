#include "batch/equilibrium_section.h"
#include "batch/note_section.h"
#include "batch/task_run.h"

namespace ferna::batch {

namespace {

void texts(JsonWriter& json, std::string_view key, int first, int last, const auto& textAt) {
    json.key(key);
    json.beginArray();
    for (int i = first; i <= last; ++i)
        json.text(textAt(i));
    json.endArray();
}

void single(JsonWriter& json, std::string_view key, Single value) {
    json.key(key);
    json.single(value);
}

void whole(JsonWriter& json, std::string_view key, int value) {
    json.key(key);
    json.whole(value);
}

void boolean(JsonWriter& json, std::string_view key, bool value) {
    json.key(key);
    json.boolean(value);
}

void text(JsonWriter& json, std::string_view key, const QString& value) {
    json.key(key);
    json.text(value);
}

void writeMaterials(JsonWriter& json, const Stan& stan) {
    const Materialy& m = stan.materialy;
    json.key("Materialy");
    json.beginObject();
    single(json, "Fd_kotwy", m.Fd_kotwy);
    single(json, "Fd2_kotwy", m.Fd2_kotwy);
    single(json, "Fv_kotwy", m.Fv_kotwy);
    text(json, "Klasa_stali", m.Klasa_stali);
    text(json, "Nazwa_betonu", m.Nazwa_betonu);
    single(json, "Rb_betonu", m.Rb_betonu);
    single(json, "Eb_betonu", m.Eb_betonu);
    single(json, "Wsp_n_val", stan.opcje.Wsp_n_val);
    single(json, "Mnoznik_dlugosci", m.Mnoznik_dlugosci);
    single(json, "Wsp_dlugosci", m.Wsp_dlugosci);
    json.endObject();
}

/// The line that the search has found; a whole plate has none.
void writeLine(JsonWriter& json, const CaseTrace& trace) {
    const auto value = [&](std::string_view key, Double number) {
        json.key(key);
        if (trace.wholePlate)
            json.null();
        else
            json.number(number);
    };
    value("Beta", trace.Beta);
    value("C_linii", trace.C_linii);
    value("Wsp_k", trace.Wsp_k);
}

void writeCase(JsonWriter& json, const ComputedTask& done, int c) {
    const Stan& stan = done.task.stan;
    const Wyniki& r = stan.wyniki;
    const CaseTrace& trace = done.traces.at(static_cast<std::size_t>(c));
    json.beginObject();
    boolean(json, "Przyp_policzony", trace.wholePlate);
    whole(json, "Typ_strefy_przyp", r.Typ_strefy_przyp(c));
    whole(json, "Klasa_znaku", stan.obciazenia.Klasa_znaku(c));
    single(json, "Przec_a", r.Przec_a(c));
    single(json, "Przec_b", r.Przec_b(c));
    single(json, "Przec_c", r.Przec_c(c));
    single(json, "Przec_d", r.Przec_d(c));
    single(json, "Sigma_b", r.Sigma_b(c));
    json.key("Sigma_kotwy");
    json.beginArray();
    for (int i = 1; i <= stan.plyta.Liczba_srub; ++i)
        json.single(r.Sigma_kotwy(i)(c));
    json.endArray();
    writeLine(json, trace);
    texts(json, "Wiersze", trace.firstLine, trace.lastLine,
          [&](int i) -> const QString& { return r.Wiersze_wynikow(i); });
    json.key("Znaki");
    json.beginArray();
    for (int i = trace.firstLine; i <= trace.lastLine; ++i)
        json.whole(r.Znak_wiersza(i));
    json.endArray();
    json.key("Wiersz_strefy");
    if (done.reportReady && !trace.wholePlate)
        json.text(done.raport.Wiersze_strefy(c - 1));
    else
        json.null();
    json.endObject();
}

void writeResults(JsonWriter& json, const ComputedTask& done) {
    const Stan& stan = done.task.stan;
    const Wyniki& r = stan.wyniki;
    writeMaterials(json, stan);
    whole(json, "Fi_max", stan.plyta.Fi_max);
    json.key("Przypadki");
    json.beginArray();
    for (int c = 1; c <= stan.obciazenia.Liczba_przyp; ++c)
        writeCase(json, done, c);
    json.endArray();
    single(json, "Sigma_b_max", r.Sigma_b_max);
    single(json, "Sigma_s_max", r.Sigma_s_max);
    single(json, "Sila_kotwy_max", r.Sila_kotwy_max);
    whole(json, "Nr_kotwy_max", r.Nr_kotwy_max);
    boolean(json, "Kotwy_OK", r.Kotwy_OK != False);
    texts(json, "Tekst_przekroczenia", 1, r.Liczba_przekroczen,
          [&](int i) -> const QString& { return r.Tekst_przekroczenia(i); });
    json.key("Wspolrzedne");
    json.beginArray();
    for (int i = 1; i <= stan.plyta.Liczba_srub; ++i) {
        json.beginArray();
        json.single(stan.plyta.X_kotwy(i));
        json.single(stan.plyta.Y_kotwy(i));
        json.endArray();
    }
    json.endArray();
}

/// In the order in which they were worked.
void writeSections(JsonWriter& json, const ComputedTask& done) {
    const Stan& stan = done.task.stan;
    if (done.column) {
        json.key("Slup");
        writeSection(json, *done.column);
    }
    if (done.plate) {
        json.key("Blacha");
        writeSection(json, stan, *done.plate);
    }
    if (done.anchor) {
        json.key("Kotwa");
        writeSection(json, stan, *done.anchor);
    }
}

void writeMessages(JsonWriter& json, const ScriptedDialogs& dialogs) {
    json.key("Komunikaty");
    json.beginArray();
    for (const ScriptedDialogs::Box& box : dialogs.messages) {
        json.beginObject();
        text(json, "tytul", box.title);
        text(json, "tekst", box.text);
        json.endObject();
    }
    json.endArray();
}

} // namespace

std::string resultText(const ComputedTask& done, JsonWriter::Layout layout) {
    JsonWriter json(layout);
    json.beginObject();
    writeMessages(json, done.dialogs);
    json.key("Blad");
    json.value(done.failure);
    boolean(json, "Obliczone", done.computed);
    boolean(json, "Przerwij_obliczenia", done.solver.Przerwij_obliczenia);
    if (done.computed)
        writeResults(json, done);
    writeSections(json, done);
    json.key("Rownowaga");
    writeEquilibria(json, done.equilibria);
    json.key("Uwagi");
    writeNotes(json, notes::notesOf(done.record));
    json.endObject();
    return json.written();
}

Json resultOf(const ComputedTask& done) {
    return Json::parse(resultText(done, JsonWriter::Layout::OneLine));
}

Json resultOfRefused(const std::string& why) {
    return {{"Blad", {{"numer", 0}, {"tekst", why}}}};
}

} // namespace ferna::batch
