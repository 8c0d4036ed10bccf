#include "desktop/program_folder.h"

#include "design/language.h"
#include "desktop/delivered_files.h"
#include "runtime/text_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>

namespace ferna {

namespace {

bool holdsTheData(const QString& folder) {
    return QFileInfo(folder + u'/' + catalogueFile(0)).isFile();
}

} // namespace

QString deliveredDataFolder() {
    const QDir beside(QCoreApplication::applicationDirPath());
    for (const QString& folder :
         {beside.path(), QDir::cleanPath(beside.filePath(QStringLiteral("../share/ferna")))})
        if (holdsTheData(folder))
            return folder;
    throw RunTimeError(error::PathNotFound, beside.filePath(catalogueFile(0))
                                                + QStringLiteral(" (brak danych programu)"));
}

QString enterProgramFolder() {
    return enterProgramFolder(QCoreApplication::applicationDirPath(), deliveredDataFolder(),
                              QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
}

QString enterProgramFolder(const QString& beside, const QString& delivered, const QString& own) {
    QString folder = beside;
    if (!holdsTheData(beside) || !QFileInfo(beside).isWritable()) {
        folder = own;
        if (!QDir().mkpath(folder))
            throw RunTimeError(error::PathNotFound, folder);
        bringDeliveredFiles(delivered, folder);
    }
    removeLeftSavings(folder);
    QDir::setCurrent(folder);
    return folder;
}

std::unique_ptr<QLockFile> lockProgramFolder(const QString& folder) {
    auto lock = std::make_unique<QLockFile>(folder + QStringLiteral("/Ferna.lock"));
    lock->setStaleLockTime(0); // a program may be open for weeks; only a dead one's lock is void
    if (lock->tryLock())
        return lock;
    const QString detail = QDir::toNativeSeparators(folder);
    if (lock->error() == QLockFile::LockFailedError)
        throw RunTimeError(error::PermissionDenied,
                           detail
                               + QStringLiteral(" (z tego folderu korzysta już otwarty program)"));
    throw RunTimeError(error::PathAccess, detail);
}

} // namespace ferna
