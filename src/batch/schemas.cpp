#include "batch/schemas.h"

#include <QFile>

namespace ferna::batch {

std::optional<std::string> schemaOf(const QString& name) {
    if (name != u"zadanie" && name != u"wynik")
        return std::nullopt;
    QFile file(QStringLiteral(":/schemat/%1.schema.json").arg(name));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.readAll().toStdString();
}

} // namespace ferna::batch
