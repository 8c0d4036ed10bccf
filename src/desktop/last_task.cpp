#include "desktop/last_task.h"

#include "design/language.h"
#include "design/start_up.h"
#include "runtime/text_file.h"

#include <QFileInfo>

#include <optional>

namespace ferna {

namespace {

/// What reading one file failed with; empty where it was read.
template <typename Read>
std::optional<RunTimeError> failureOf(const Read& read) {
    try {
        read();
        return std::nullopt;
    } catch (const RunTimeError& failure) {
        return failure;
    }
}

/// Reads one file of the start, put back where that is allowed. False where it is not.
template <typename Read>
bool readOrReplace(const QString& path, const QString& pristine, bool isTask,
                   const MayReplace& mayReplace, const Read& read) {
    const std::optional<RunTimeError> failure = failureOf(read);
    if (!failure)
        return true;
    const QFileInfo info(path);
    const QString keptAs = info.exists() ? QFileInfo(damagedCopyOf(path)).fileName() : QString();
    if (!mayReplace({info.fileName(), *failure, keptAs, isTask}))
        return false;
    restoreDelivered(path, pristine);
    read();
    return true;
}

} // namespace

bool restoreLastTask(Stan& stan, const QString& folder, const QString& pristine,
                     const MayReplace& mayReplace) {
    clearForStart(stan);
    if (!readOrReplace(folder + u'/' + taskFile, pristine + u'/' + taskFile, true, mayReplace,
                       [&] { readLastTask(stan, folder); }))
        return false;
    const QString catalogue = catalogueFile(stan.opcje.Nr_jezyka);
    return readOrReplace(folder + u'/' + catalogue, pristine + u'/' + catalogue, false, mayReplace,
                         [&] { Czytaj_teksty(stan, folder + u'/' + catalogue); });
}

QString damagedCopyOf(const QString& path) {
    const QString first = path + QStringLiteral(".uszkodzony");
    QString copy = first;
    for (int n = 2; QFileInfo::exists(copy); ++n)
        copy = first + u'.' + QString::number(n);
    return copy;
}

void restoreDelivered(const QString& path, const QString& pristine) {
    const QByteArray delivered = readFileWhole(pristine);
    if (QFileInfo::exists(path))
        writeFileWhole(damagedCopyOf(path), readFileWhole(path));
    writeFileWhole(path, delivered);
}

} // namespace ferna
