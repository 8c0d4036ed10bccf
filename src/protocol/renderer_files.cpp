#include "protocol/renderer_files.h"

#include "runtime/codepage.h"

#include <QDir>

#include <algorithm>

namespace ferna::wyd {

QString pathLine(const QString& folder, const QString& name) {
    const QString path = QDir::toNativeSeparators(folder + u'/' + name);
    return std::all_of(path.begin(), path.end(), codepage::holds) ? path : name;
}

QString pathOfLine(const QString& folder, const QString& line) {
    const QString path = line.trimmed();
    return path.isEmpty() ? path : QDir(folder).absoluteFilePath(QDir::fromNativeSeparators(path));
}

} // namespace ferna::wyd
