#include "runtime/settings.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>

namespace ferna::settings {

namespace {

const QString folderKey = QStringLiteral("zapis/folder");

QSettings opened() {
    const QString name = QStringLiteral("ferna");
    return {QSettings::IniFormat, QSettings::UserScope, name, name};
}

} // namespace

QString file() {
    return opened().fileName();
}

QVariant value(const QString& key, const QVariant& otherwise) {
    return opened().value(key, otherwise);
}

void setValue(const QString& key, const QVariant& value) {
    opened().setValue(key, value);
}

QString saveFolder() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    for (const QString& folder : {value(folderKey).toString(), documents})
        if (!folder.isEmpty() && QDir(folder).exists())
            return folder;
    return QDir::homePath();
}

void rememberSaveFolder(const QString& folder) {
    setValue(folderKey, QDir(folder).absolutePath());
}

} // namespace ferna::settings
