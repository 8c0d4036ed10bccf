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
    const QString path = QDir::fromNativeSeparators(line.trimmed());
    if (path.startsWith(u':')) // Qt would take it for data inside the program
        return folder + u'/' + path;
    return path.isEmpty() ? path : QDir(folder).absoluteFilePath(path);
}

} // namespace ferna::wyd
