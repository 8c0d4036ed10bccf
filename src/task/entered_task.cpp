#include "task/entered_task.h"

#include "design/material_tables.h"
#include "design/start_up.h"
#include "input/anchor_layout.h"
#include "input/material_fields.h"
#include "task/json_text.h"

namespace ferna {

namespace {

const QString zero = QStringLiteral("0");
const LoadRow<QString> firstRow{QStringLiteral("100"), zero, zero, zero, zero};

void takeOptions(Stan& stan, const Task& task) {
    const Opcje_zadania& asked = task.stan.opcje;
    Opcje_zadania& options = stan.opcje;
    options = asked;
    options.Nazwa_projektu = task.fields.txtNaz_proj;
    options.Hsily_wszystkie = task.fields.optHsruby_0 ? 0 : 1;
    options.Stopa_betonowa = task.fields.Option1_0 ? 0 : 1;
    options.Nr_stali = CInt(qMax(task.fields.cmbStal, 0) + 1);
    const double page = numberIn(task.fields.txtNr_strony).value_or(1);
    if (page >= -32768 && page <= 32767)
        options.Nr_strony = CInt(page);
    takeEb(stan);
    stan.materialy.Nazwa_betonu =
        QString::fromLatin1(concrete(options.Nr_normy, options.Nr_betonu).name);
    computeRatio(stan);
    try {
        if (options.Tryb_wsp_n == 1)
            options.Wsp_n_val = typedRatio(task.fields.Text2);
    } catch (const RunTimeError&) { // told where it is used
    }
}

void takeSteels(Materialy& materials, const Materialy& before, const Materialy& asked) {
    const bool isAsked = !asked.Stal_nazwa.isEmpty() || asked.Stal_fd != 0;
    const Materialy& anchors = isAsked ? asked : before;
    materials.Stal_nazwa = anchors.Stal_nazwa;
    materials.Stal_fd = anchors.Stal_fd;
    materials.Stal_fi_max = anchors.Stal_fi_max;
    materials.Stal_Re = anchors.Stal_Re;
    materials.Stal_Rm = anchors.Stal_Rm;
    materials.Blacha_nazwa = before.Blacha_nazwa;
    materials.Blacha_fd = before.Blacha_fd;
    materials.Blacha_t_max = before.Blacha_t_max;
}

} // namespace

Stan openedState(const Stan& before, const Task& task) {
    Stan stan;
    clearForStart(stan);
    stan.Teksty = before.Teksty;
    takeSteels(stan.materialy, before.materialy, task.stan.materialy);
    takeOptions(stan, task);
    stan.plyta = task.stan.plyta;
    stan.obciazenia = before.obciazenia;
    stan.obciazenia.Liczba_przyp = task.stan.obciazenia.Liczba_przyp;
    fillAnchorLines(stan);
    return stan;
}

InputFields openedFields(const Task& task) {
    InputFields fields = task.fields;
    for (LoadRow<QString>& row : fields.loads)
        if (row == LoadRow<QString>())
            row = firstRow;
    return fields;
}

Task withColumnInCase(Task task) {
    if (!addsCase(task))
        return task;
    const DeclaredLoads declared = declareLoads(*task.column, task.stan, task.fields);
    if (declared.failure)
        throw *declared.failure;
    task.column->inCase = task.stan.obciazenia.Liczba_przyp;
    return task;
}

Task newTask(const Task& present) {
    Task task = readTask(parsed(R"({"Nr_betonu": 3, "Dlug_plyty_mm": 1200, "Szer_plyty_mm": 1200,
        "Kotwy": [], "Przypadki": [{"N": 100, "M1": 100, "M2": 100, "Vx": 0, "Vy": 0}]})"));
    const Opcje_zadania& kept = present.stan.opcje;
    Opcje_zadania& options = task.stan.opcje;
    task.fields.txtNaz_proj = present.fields.txtNaz_proj;
    task.fields.txtNr_strony = present.fields.txtNr_strony;
    options.Nr_jezyka = kept.Nr_jezyka;
    options.Tryb_RTF = kept.Tryb_RTF;
    chooseNorm(task.stan, kept.Nr_normy);
    task.fields.Text2 = ratioText(task.stan);
    return task;
}

} // namespace ferna
