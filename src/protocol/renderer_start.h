#pragma once

#include "protocol/job.h"

#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>

namespace ferna {

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
