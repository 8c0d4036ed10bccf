#include "runtime/module_file.h"

#include <QDir>
#include <QFileInfo>

namespace ferna {

QString moduleFile(const QString& name) {
    const QFileInfo program(QFile::symLinkTarget(QStringLiteral("/proc/self/exe")));
    const QDir beside(program.absolutePath());
    const QString installed =
        QDir::cleanPath(beside.filePath(QStringLiteral(FERNA_MODULE_FOLDER "/") + name));
    return !beside.exists(name) && QFileInfo::exists(installed) ? installed : beside.filePath(name);
}

} // namespace ferna
