#pragma once

#include "protocol/job.h"

#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>

namespace ferna {

/// The renderer at work.
struct RendererState {
    std::chrono::milliseconds worked; ///< since its start, or since its last own window closed
    bool showsWindow;                 ///< a dialog of its own waits for the user
};

/// Asked again and again while the renderer works. False: it is not waited for any longer.
using WaitOn = std::function<bool(const RendererState& state)>;

/// What a run of the renderer has brought.
struct RendererReport {
    QStringList written; ///< files saved under names that its user was asked for
};

/// Starts the renderer on the job file and waits for its end, however long it takes, or until
/// `waitOn` gives up, which ends the renderer. Error 53 where it is missing, 429 where it cannot be
/// started, crashes, fails or is given up; the detail names what and why. A dialog that the user
/// cancelled is no error. `options` go in front of the job file. `window` is the window system's
/// number of the window over which the renderer's own stand, 0 for none.
RendererReport runRenderer(const QString& folder, const QStringList& options = {},
                           const WaitOn& waitOn = {}, quintptr window = 0);

/// The renderer's executable for a program folder: there, else beside this program.
QString rendererPath(const QString& folder);

} // namespace ferna
