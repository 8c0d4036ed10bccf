#include "task/task.h"

#include "design/material_tables.h"
#include "input/anchor_layout.h"
#include "runtime/format.h"
#include "task/typed_fields.h"

namespace ferna {

namespace {

std::string element(const char* key, std::size_t index) {
    return std::string(key) + '[' + std::to_string(index) + ']';
}

/// More parts in an array than a task may have.
Complaint atMost(int most, const char* english, std::size_t count, const char* polish) {
    const std::string number = std::to_string(most);
    const std::string met = std::to_string(count);
    return {"expected at most " + number + english + ", found " + met,
            "program przyjmuje najwyżej " + number + polish + ", a jest ich " + met};
}

Complaint casesExpected(std::size_t most, bool column, std::size_t count) {
    const std::string number = std::to_string(most);
    const std::string met = std::to_string(count);
    return {"expected 1 to " + number + (column ? " cases and a column" : " cases") + ", found "
                + met,
            "ma tu stać od 1 do " + number + " przypadków obciążenia"
                + (column ? " oprócz przypadku ze słupa" : "") + ", a jest ich " + met};
}

void readOptions(ObjectReader& task, Task& out) {
    Opcje_zadania& options = out.stan.opcje;
    out.fields.txtNaz_proj = task.text("Nazwa_projektu", {});
    out.Nazwa_stopy = task.text("Nazwa_stopy", {});
    out.fields.txtNr_strony = general(task.integer("Nr_strony", 1));
    options.Nr_normy = task.integer("Nr_normy", 0, 0, 1);
    options.Nr_jezyka = task.integer("Nr_jezyka", 0, 0, 4);
    options.Tryb_RTF = task.integer("Tryb_RTF", 1, 0, 2);
    out.fields.optHsruby_0 = task.integer("Hsily_wszystkie", 0, 0, 1) == 0;
    options.Tryb_wsp_n = task.integer("Tryb_wsp_n", 0, 0, 1);
    options.Nr_betonu = task.integer("Nr_betonu", 1, 1, 5);
    out.fields.Option1_0 = task.integer("Stopa_betonowa", 0, 0, 1) == 0;
    out.fields.cmbStal = task.integer("Nr_stali", 2, 1, userSteel) - 1;
}

/// n as the field of the form shows it: computed and written with two decimals, or as typed.
void readRatio(ObjectReader& task, Task& out) {
    const Opcje_zadania& options = out.stan.opcje;
    if (options.Tryb_wsp_n == 1) {
        out.fields.Text2 = general(task.requiredNumber("Wsp_n_val"));
        return;
    }
    task.number("Wsp_n_val", 0);
    const Single n = ratioN(concrete(options.Nr_normy, options.Nr_betonu).Eb_betonu);
    out.fields.Text2 = Format(n, u"###.##");
}

/// Both the remembered values and what is typed into the dialog.
void readSteel(ObjectReader& task, Task& out) {
    if (!task.has("Stal"))
        return;
    ObjectReader steel(task.at("Stal"), "Stal");
    const auto single = [&steel](std::string_view key) {
        const double value = steel.number(key, 0);
        if (!std::isfinite(static_cast<Single>(value)))
            throw TaskError(steel.pathOf(key), {"expected a number that fits 32 bits",
                                                "ta liczba nie mieści się w 32 bitach"});
        return CSng(value);
    };
    Materialy& materials = out.stan.materialy;
    materials.Stal_nazwa = steel.text("Stal_nazwa", {});
    materials.Stal_fd = single("Stal_fd");
    materials.Stal_fi_max = steel.integer("Stal_fi_max", 0);
    materials.Stal_Re = single("Stal_Re");
    materials.Stal_Rm = single("Stal_Rm");
    steel.finish();
    out.steel = rememberedAnchorSteel(materials);
}

void readAnchors(ObjectReader& task, Task& out) {
    const TaskValue& anchors = arrayOf(task.required("Kotwy"), "Kotwy");
    if (anchors.count > MaxAnchors)
        throw TaskError("Kotwy", atMost(MaxAnchors, " anchors", anchors.count, " kotew"));
    Plyta_i_kotwy& plate = out.stan.plyta;
    std::size_t i = 0;
    for (const TaskValue& part : anchors.parts()) {
        ObjectReader anchor(part, element("Kotwy", i));
        const auto coordinate = [&](std::string_view key) -> Integer {
            const double mm = anchor.requiredNumber(key);
            if (!(std::fabs(mm) <= 32767))
                throw TaskError(anchor.pathOf(key),
                                {"expected a coordinate in mm that fits 16 bits",
                                 "ma tu stać współrzędna w mm od -32767 do 32767"});
            return CInt(mm);
        };
        const Integer x = coordinate("x");
        const Integer y = coordinate("y");
        plate.Liczba_srub = CInt(static_cast<int>(++i));
        storeAnchorAt(plate, plate.Liczba_srub, x, y, anchor.requiredInteger("fi"));
        anchor.finish();
    }
}

void readCases(ObjectReader& task, Task& out) {
    const TaskValue& cases = arrayOf(task.required("Przypadki"), "Przypadki");
    const std::size_t most = addsCase(out) ? MaxCases - 1 : MaxCases;
    if (cases.count == 0 || cases.count > most)
        throw TaskError("Przypadki", casesExpected(most, addsCase(out), cases.count));
    std::size_t r = 0;
    for (const TaskValue& part : cases.parts()) {
        ObjectReader loads(part, element("Przypadki", r));
        LoadRow<QString>& row = out.fields.loads.at(r++);
        row.N = general(loads.requiredNumber("N"));
        row.M1 = general(loads.requiredNumber("M1"));
        row.M2 = general(loads.requiredNumber("M2"));
        row.Vx = general(loads.requiredNumber("Vx"));
        row.Vy = general(loads.requiredNumber("Vy"));
        loads.finish();
    }
    out.stan.obciazenia.Liczba_przyp = CInt(static_cast<int>(cases.count));
}

/// The case in which the column's totals stand.
void readCaseOfColumn(ObjectReader& task, Task& out) {
    const Integer inCase = task.integer("Slup_przypadek", 1, 1, MaxCases);
    if (!out.column)
        throw TaskError("Slup_przypadek",
                        {"expected together with Slup", "ten klucz ma sens tylko z kluczem Slup"});
    out.column->inCase = inCase;
}

/// Texts that were typed where a number belongs: they stand in their fields in place of it.
void readTyped(const TaskValue& typed, InputFields& fields) {
    std::vector<std::pair<std::string, QString*>> known;
    forTypedFields(fields, [&](std::string key, QString& field) {
        known.emplace_back(std::move(key), &field);
    });
    ObjectReader texts(typed, "Wpisane");
    for (const auto& [key, field] : known)
        *field = texts.text(key, *field);
    texts.finish();
}

} // namespace

Task readTask(const TaskValue& json, TaskCases cases) {
    Task out;
    ObjectReader task(json, "");
    readOptions(task, out);
    readRatio(task, out);
    readSteel(task, out);
    out.fields.Text3 = general(task.requiredInteger("Dlug_plyty_mm"));
    out.fields.Text4 = general(task.requiredInteger("Szer_plyty_mm"));
    if (task.has("Slup"))
        out.column = readColumnTask(task.at("Slup"));
    if (task.has("Slup_przypadek"))
        readCaseOfColumn(task, out);
    if (task.has("Blacha"))
        out.plate = readPlateTask(task.at("Blacha"));
    if (task.has("Kotwa"))
        out.anchor = readAnchorTask(task.at("Kotwa"));
    readAnchors(task, out);
    if (cases == TaskCases::Required || task.has("Przypadki"))
        readCases(task, out);
    if (out.column && out.column->inCase > out.stan.obciazenia.Liczba_przyp)
        throw TaskError("Slup_przypadek", {"there is no such case", "nie ma takiego przypadku"});
    if (task.has("Wpisane"))
        readTyped(task.at("Wpisane"), out.fields);
    task.finish();
    return out;
}

} // namespace ferna
