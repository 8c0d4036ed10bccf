#include "windows/file_folder.h"

#include "runtime/run_time_error.h"

#include <QDir>

namespace ferna {

void openFolder(const QString& folder, const std::function<bool(const QUrl&)>& open) {
    if (!open(QUrl::fromLocalFile(folder)))
        throw RunTimeError(error::NoObject, QStringLiteral("przeglądarka plików dla folderu %1")
                                                .arg(QDir::toNativeSeparators(folder)));
}

} // namespace ferna
