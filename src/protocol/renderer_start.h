#pragma once

#include "runtime/numbers.h"

#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>

namespace ferna {

/// What the renderer is asked for, by the mode it is told in the job file.
enum class RenderMode {
    Clipboard,     ///< screen picture on the clipboard
    ScreenPicture, ///< screen picture as a metafile in the program folder
    Print,         ///< default printer
    PrintChosen,   ///< printer of the user's choice
    Emf            ///< metafiles under a name that the user is asked for
};

/// The job file's first line: mode, three constants of the renderer, first page number.
QString jobLine(RenderMode mode, Integer Nr_strony);

/// Writes the job file into the program folder. Errors of `writeFileWhole`.
void writeJob(const QString& folder, RenderMode mode, Integer Nr_strony);

/// Asked again and again while the renderer works, with the time it has taken so far. False: it is
/// not waited for any longer.
using WaitOn = std::function<bool(std::chrono::milliseconds worked)>;

/// Starts the renderer on the job file and waits for its end, however long it takes, or until
/// `waitOn` gives up, which ends the renderer. Error 53 where it is missing, 429 where it cannot be
/// started, crashes, fails or is given up; the detail names what and why. A dialog that the user
/// cancelled is no error. `options` go in front of the job file.
void runRenderer(const QString& folder, const QStringList& options = {}, const WaitOn& waitOn = {});

/// The renderer's executable for a program folder: there, else beside this program.
QString rendererPath(const QString& folder);

} // namespace ferna
