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

/// For whom the renderer works.
struct RendererClient {
    quintptr window = 0; ///< the window system's number of the window over which its own stand
    QString language;    ///< of the report (BCP 47); Polish where it is empty
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
/// cancelled is no error. `options` go in front of the job file.
RendererReport runRenderer(const QString& folder, const QStringList& options = {},
                           const WaitOn& waitOn = {}, const RendererClient& client = {});

/// The environment variable in which the renderer learns the language of the report, where its call
/// does not tell it.
inline constexpr const char* languageVariable = "WYD_DRK_JEZYK";

/// The renderer's executable for a program folder: there, else beside this program.
QString rendererPath(const QString& folder);

} // namespace ferna
