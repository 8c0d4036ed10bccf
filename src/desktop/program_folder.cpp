#include "desktop/program_folder.h"

#include "design/language.h"
#include "desktop/delivered_files.h"
#include "runtime/text_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>
#include <QSysInfo>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace ferna {

namespace {

bool holdsTheData(const QString& folder) {
    return QFileInfo(folder + u'/' + catalogueFile(0)).isFile();
}

/// A program holds its lock open and locked; what nobody holds was left behind, whatever it says.
bool isAbandoned(const QString& lock) {
    const int file = ::open(QFile::encodeName(lock).constData(), O_RDWR | O_CLOEXEC | O_NOFOLLOW);
    if (file < 0)
        return false;
    const bool abandoned = ::flock(file, LOCK_EX | LOCK_NB) == 0;
    ::close(file);
    return abandoned;
}

QString heldHere(const FolderHolder& holder) {
    return QStringLiteral("%1 (z tego folderu korzysta już otwarty program, proces nr %2; zamknij "
                          "go i uruchom program ponownie)")
        .arg(holder.lock)
        .arg(holder.process);
}

QString heldElsewhere(const FolderHolder& holder) {
    return QStringLiteral("%1 (z tego folderu korzysta program na komputerze %2, proces nr %3; "
                          "jeżeli tam już nie działa, usuń ten plik)")
        .arg(holder.lock, holder.host)
        .arg(holder.process);
}

} // namespace

QString deliveredDataFolder() {
    const QDir beside(QCoreApplication::applicationDirPath());
    for (const QString& folder :
         {beside.path(), QDir::cleanPath(beside.filePath(QStringLiteral(FERNA_DATA_FOLDER)))})
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

std::unique_ptr<QLockFile>
lockProgramFolder(const QString& folder,
                  const std::function<bool(const FolderHolder& holder)>& takeOver) {
    const QString path = QDir(folder).absoluteFilePath(QStringLiteral("Ferna.lock"));
    auto lock = std::make_unique<QLockFile>(path);
    lock->setStaleLockTime(0); // a program may be open for weeks; only a dead one's lock is void
    if (lock->tryLock())
        return lock;
    FolderHolder holder{QDir::toNativeSeparators(path), {}, 0};
    if (lock->error() != QLockFile::LockFailedError)
        throw RunTimeError(error::PathAccess,
                           holder.lock + QStringLiteral(" (nie można utworzyć tego pliku)"));
    QString program;
    const bool known = lock->getLockInfo(&holder.process, &holder.host, &program);
    const bool elsewhere = known && holder.host != QSysInfo::machineHostName();
    if (elsewhere ? takeOver && takeOver(holder) : isAbandoned(path)) {
        QFile::remove(path);
        if (lock->tryLock())
            return lock;
    }
    throw RunTimeError(error::PermissionDenied,
                       elsewhere ? heldElsewhere(holder) : heldHere(holder));
}

} // namespace ferna
