#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

class QLockFile;

namespace ferna {

/// The folder of the delivered data: that of the executable where it holds them, else the installed
/// one where the installation puts it (share/ferna beside bin). Error 76 where neither holds them.
QString deliveredDataFolder();

/// The program folder: that of the executable where it can be written and holds the delivered data;
/// otherwise the user's data folder, which `bringDeliveredFiles` fills and keeps up to date.
/// What a killed program has left of its savings goes. Becomes the current folder. Errors 76 and
/// those of `readFileWhole` and `writeFileWhole`.
QString enterProgramFolder();

/// The same for given folders: `beside` that of the executable, `delivered` the data, `own` the
/// user's data folder.
QString enterProgramFolder(const QString& beside, const QString& delivered, const QString& own);

/// Who has the program folder, as the lock tells.
struct FolderHolder {
    QString lock; ///< the lock's file
    QString host; ///< the computer
    qint64 process = 0;
};

/// Keeps the program folder for one open program, as long as the returned lock lives: two would mix
/// each other's pictures, page numbers and reports. A lock that a killed program or a power cut has
/// left on this computer, or that is none, is taken over. Whether a program of another computer
/// still runs cannot be seen: `takeOver` is asked, without it the folder counts as in use. Error 70
/// where another program has the folder, 75 where it cannot be locked; the detail names the lock's
/// file and what to do.
std::unique_ptr<QLockFile>
lockProgramFolder(const QString& folder,
                  const std::function<bool(const FolderHolder& holder)>& takeOver = {});

} // namespace ferna
