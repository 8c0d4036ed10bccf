#pragma once

#include <QString>
#include <QStringList>

namespace ferna {

/// The folder of the delivered data: that of the executable where it holds them, else the installed
/// one beside it (../share/ferna). Error 76 where neither holds them.
QString deliveredDataFolder();

/// The program folder: that of the executable where it can be written and holds the delivered data;
/// otherwise the user's data folder, which `bringDeliveredFiles` fills and keeps up to date.
/// Becomes the current folder. Errors 76 and those of `readFileWhole` and `writeFileWhole`.
QString enterProgramFolder();

/// The same for given folders: `beside` that of the executable, `delivered` the data, `own` the
/// user's data folder.
QString enterProgramFolder(const QString& beside, const QString& delivered, const QString& own);

/// Puts a file back as it was delivered (`pristine`). A damaged one is kept under its name with
/// ".uszkodzony" behind it. Errors of `readFileWhole` and `writeFileWhole`.
void restoreDelivered(const QString& path, const QString& pristine);

} // namespace ferna
