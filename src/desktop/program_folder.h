#pragma once

#include <QString>
#include <QStringList>

#include <memory>

class QLockFile;

namespace ferna {

/// The folder of the delivered data: that of the executable where it holds them, else the installed
/// one beside it (../share/ferna). Error 76 where neither holds them.
QString deliveredDataFolder();

/// The program folder: that of the executable where it can be written and holds the delivered data;
/// otherwise the user's data folder, which `bringDeliveredFiles` fills and keeps up to date.
/// What a killed program has left of its savings goes. Becomes the current folder. Errors 76 and
/// those of `readFileWhole` and `writeFileWhole`.
QString enterProgramFolder();

/// The same for given folders: `beside` that of the executable, `delivered` the data, `own` the
/// user's data folder.
QString enterProgramFolder(const QString& beside, const QString& delivered, const QString& own);

/// Keeps the program folder for one open program, as long as the returned lock lives: two would mix
/// each other's pictures, page numbers and reports. A program that was killed leaves no lock
/// behind. Error 70 where another one has the folder, 75 where it cannot be locked.
std::unique_ptr<QLockFile> lockProgramFolder(const QString& folder);

} // namespace ferna
