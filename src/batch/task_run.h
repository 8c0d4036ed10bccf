#pragma once

#include "analysis/stan_przypadku.h"
#include "batch/task.h"
#include "command/entered_equilibria.h"
#include "notes/notes.h"
#include "report/report_lines.h"

#include <QDateTime>

#include <optional>

namespace ferna::batch {

/// What every task of a run has in common.
struct RunOptions {
    QString catalogue;     ///< replaces the catalogue of the task's language; empty: not
    QString dataFolder;    ///< where the delivered catalogues are
    QDateTime now;         ///< date and time of the title block
    QString pictures = {}; ///< folder for the pictures of the report; empty: none are made
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
    Task task;
    Stan_przypadku solver;
    Raport raport;
    ScriptedDialogs dialogs;
    EnteredEquilibria equilibria; ///< of the task as typed
    notes::Record record;         ///< what the notes go by
    QDateTime now;                ///< date and time of the title block
    Json failure;          ///< the run-time error that stopped the run, null where there was none
    bool computed = false; ///< false where a validation ended the command
    bool reportReady = false;                   ///< the lines of the report stand
    std::array<CaseTrace, MaxCases + 1> traces; ///< by case
    Json sections = Json::object();             ///< results of "Slup", "Blacha", "Kotwa"
};

/// Computes a task as "Oblicz" would and prepares the lines of its report.
/// Throws RunTimeError where the catalogue cannot be read; a run-time error of the calculation goes
/// into the result.
ComputedTask run(Task task, const RunOptions& options);

/// The result of a computed task, or of a refused one.
Json resultOf(const ComputedTask& done);

/// The result line of a task that the companion itself refuses.
Json resultOfRefused(const std::string& why);

/// True where the result counts as computed: exit code 0, else 1.
bool solved(const ComputedTask& done);

} // namespace ferna::batch
