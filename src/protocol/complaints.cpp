#include "protocol/complaints.h"

#include <QDir>

namespace ferna::wyd {

void Complaints::add(const QString& path, int line, const QString& what) {
    lines_ +=
        QStringLiteral("%1, wiersz %2: %3").arg(QDir::toNativeSeparators(path)).arg(line).arg(what);
}

} // namespace ferna::wyd
