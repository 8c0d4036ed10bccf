#pragma once

#include "runtime/numbers.h"

#include <QString>

namespace ferna::renderer {

/// What the job file asks for.
enum class Mode {
    ScreenFile = -2, ///< all pages as one picture, `$a1.emf`
    DefaultPrinter = -1,
    ChosenPrinter = 1,
    SaveEmf = 2, ///< the file name is asked for
    Clipboard = 3,
};

/// The job file: mode, three numbers and first page number; the body's path; the frame's path.
struct Job {
    Mode mode = Mode::ScreenFile;
    double lineWidthPt = 0.5; ///< the second number: pen width of drawn lines, points
    Integer firstPage = 1;
    QString bodyPath;
    QString framePath;
    QString folder; ///< of the job file; the screen picture and the reply are left there
};

/// The folder of a job file, also where the file is missing.
QString folderOf(const QString& jobPath);

/// Reads a job file; relative paths count from its folder. Errors of FieldReader, 9 for an unknown
/// mode, 62 for a missing path; the detail names file and line.
Job readJob(const QString& path);

/// Leaves the reply `W_X.txt` in the folder: 1 and the next free page number after a run that did
/// its work, 0 and the job's own after one that failed. Errors of `writeFileWhole`.
void writeReply(const QString& folder, bool done, int nextPage);

} // namespace ferna::renderer
