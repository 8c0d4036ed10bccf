#include "batch/output_files.h"

#include "runtime/run_time_error.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

namespace ferna::batch {

namespace {

/// What two names of one file have in common; empty for what is no plain file.
QString identityOf(const QString& file) {
    struct stat info {};
    if (::stat(QFile::encodeName(file).constData(), &info) == 0)
        return S_ISREG(info.st_mode) ? QStringLiteral("%1:%2").arg(info.st_dev).arg(info.st_ino)
                                     : QString();
    const QFileInfo absent(file);
    return absent.dir().canonicalPath() + u'/' + absent.fileName();
}

[[noreturn]] void refuse(const QString& file, const char* why) {
    throw RunTimeError(error::BadFileName, file + QStringLiteral(" (%1)").arg(QLatin1String(why)));
}

} // namespace

OutputFiles::OutputFiles(const QStringList& inputs) {
    for (const QString& file : inputs)
        inputs_ += identityOf(file);
}

void OutputFiles::claim(const QString& file) {
    const QString identity = identityOf(file);
    if (identity.isEmpty())
        return;
    if (inputs_.contains(identity))
        refuse(file, "this call reads the file");
    if (outputs_.contains(identity))
        refuse(file, "two outputs of this call");
    outputs_ += identity;
}

QString pageName(const QString& file, const QString& stem, const QString& page) {
    const qsizetype point = file.lastIndexOf(u'.');
    return file.first(point < 0 ? file.size() : point) + page.mid(stem.size());
}

} // namespace ferna::batch
