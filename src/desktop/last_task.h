#pragma once

#include "design/stan.h"
#include "runtime/run_time_error.h"

#include <functional>

namespace ferna {

/// A file of the start that cannot be read.
struct DamagedFile {
    QString name;     ///< without its folder
    RunTimeError why; ///< what reading it failed with
    QString keptAs;   ///< the name under which it would be kept; empty where it is missing
    bool isTask;      ///< the configuration; otherwise the catalogue of its language
};

/// Asked for each such file: true where the delivered one may take its place.
using MayReplace = std::function<bool(const DamagedFile& file)>;

/// Brings the state to where the main form finds it (`startUp`). A file that cannot be read is put
/// back as it was delivered (from the folder `pristine`) where `mayReplace` allows it; the other
/// file is not touched. False where it does not allow it. Errors of `restoreDelivered`, and those
/// of reading a file that fails as delivered too.
bool restoreLastTask(Stan& stan, const QString& folder, const QString& pristine,
                     const MayReplace& mayReplace);

/// The name, beside the file, under which a damaged file is kept: its own with ".uszkodzony" behind
/// it, and a number from 2 where that one is taken, so that no kept file is lost.
QString damagedCopyOf(const QString& path);

/// Puts a file back as it was delivered (`pristine`). A damaged one is kept as `damagedCopyOf`
/// says. Errors of `readFileWhole` and `writeFileWhole`; the file is then as it was.
void restoreDelivered(const QString& path, const QString& pristine);

} // namespace ferna
