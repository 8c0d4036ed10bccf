#pragma once

#include "runtime/numbers.h"

#include <QString>

namespace ferna {

/// What the renderer is asked for. The values are those of the job file.
enum class RenderMode {
    ScreenPicture = -2, ///< all pages as one picture, a metafile in the program folder
    Print = -1,         ///< default printer
    PrintChosen = 1,    ///< printer of the user's choice
    Emf = 2,            ///< metafiles under a name that the user is asked for
    Clipboard = 3,      ///< all pages as one picture, on the clipboard
};

/// The job file: mode, three numbers and first page number; the body's path; the frame's path.
struct Job {
    RenderMode mode = RenderMode::ScreenPicture;
    double lineWidthPt = 0.5; ///< the second number: pen width of drawn lines, points
    Integer firstPage = 1;
    QString bodyPath;
    QString framePath;
    QString folder; ///< of the job file; the screen picture and the reply are left there
};

/// The job file's first line: mode, three constants of the renderer, first page number.
QString jobLine(RenderMode mode, Integer Nr_strony);

/// Writes the job file into the program folder. Errors of `writeFileWhole`.
void writeJob(const QString& folder, RenderMode mode, Integer Nr_strony);

/// The folder of a job file, also where the file is missing.
QString folderOf(const QString& jobPath);

/// Reads a job file; relative paths count from its folder. Errors of FieldReader, 9 for an unknown
/// mode, 62 for a missing path; the detail names file and line.
Job readJob(const QString& path);

} // namespace ferna
