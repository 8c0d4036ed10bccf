#pragma once

#include "analysis/stan_przypadku.h"
#include "batch/anchor_section.h"
#include "batch/column_section.h"
#include "batch/plate_section.h"
#include "command/entered_equilibria.h"
#include "design/language.h"
#include "notes/notes.h"
#include "report/report_lines.h"
#include "report/title_lines.h"
#include "task/task.h"

#include <QDateTime>

#include <memory>
#include <optional>

namespace ferna::batch {

/// What every task of a run has in common.
struct RunOptions {
    QString catalogue;     ///< replaces the catalogue of the task's language; empty: not
    QString dataFolder;    ///< where the delivered catalogues are
    QDateTime now;         ///< date and time of the title block
    QString pictures = {}; ///< folder for the pictures of the report; empty: none are made
    std::shared_ptr<CatalogueStock> catalogues =
        std::make_shared<CatalogueStock>(dataFolder, catalogue); ///< as read for all tasks
    std::shared_ptr<TitleLinesStock> titleLines =
        std::make_shared<TitleLinesStock>(dataFolder); ///< the same
    bool reports = true;                               ///< false: none will be asked for
};

/// What the solver leaves behind a case and the next case overwrites.
struct CaseTrace {
    Integer firstLine = 1; ///< result lines of the case: firstLine..lastLine
    Integer lastLine = 0;
    bool wholePlate = false;
    Double Beta = 0;
    Double C_linii = 0;
    Double Wsp_k = 0;
};

/// A task with everything that its computation left behind.
struct ComputedTask {
    ComputedTask(Task&& asked, QDateTime moment) : task(std::move(asked)), now(std::move(moment)) {}

    Task task;
    QDateTime now; ///< date and time of the title block
    Stan_przypadku solver;
    Raport raport;
    ScriptedDialogs dialogs;
    EnteredEquilibria equilibria; ///< of the task as typed
    notes::Record record;         ///< what the notes go by
    Json failure;          ///< the run-time error that stopped the run, null where there was none
    bool computed = false; ///< false where a validation ended the command
    bool reportReady = false; ///< the lines of the report stand, where reports may be asked for
    std::array<CaseTrace, MaxCases + 1> traces; ///< by case
    // The sections, as far as the run has come to them.
    std::optional<ColumnSectionResult> column;
    std::optional<PlateSectionResult> plate;
    std::optional<AnchorSectionResult> anchor;
};

/// Computes a task as "Oblicz" would and prepares the lines of its report: without reports only
/// those that the result has too.
/// Throws RunTimeError where the catalogue cannot be read; a run-time error of the calculation goes
/// into the result.
ComputedTask run(Task task, const RunOptions& options);

/// The result of a computed task as it is written.
std::string resultText(const ComputedTask& done, JsonWriter::Layout layout);

/// The same as a value.
Json resultOf(const ComputedTask& done);

/// The result line of a task that the companion itself refuses.
Json resultOfRefused(const std::string& why);

/// True where the result counts as computed: exit code 0, else 1.
bool solved(const ComputedTask& done);

} // namespace ferna::batch
