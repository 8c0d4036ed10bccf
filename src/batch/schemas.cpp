#include "batch/schemas.h"

#include <QFile>

namespace ferna::batch {

const QStringList& schemaNames() {
    static const QStringList names{QStringLiteral("zadanie"), QStringLiteral("wynik"),
                                   QStringLiteral("zakres"), QStringLiteral("dobor"),
                                   QStringLiteral("nosnosc")};
    return names;
}

std::optional<std::string> schemaOf(const QString& name) {
    if (!schemaNames().contains(name))
        return std::nullopt;
    QFile file(QStringLiteral(":/schemat/%1.schema.json").arg(name));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.readAll().toStdString();
}

} // namespace ferna::batch
