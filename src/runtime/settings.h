#pragma once

#include <QString>
#include <QVariant>

namespace ferna {

/// What the program remembers of its user's habits, beside the task and never in its files: one
/// settings file in the user's configuration folder, shared by the executables.
namespace settings {

/// Path of the file.
QString file();
/// A value as it was stored last; `otherwise` where there is none.
QVariant value(const QString& key, const QVariant& otherwise = {});
/// Stores a value. A file that cannot be written is no failure: the habit is forgotten.
void setValue(const QString& key, const QVariant& value);

/// The folder where save questions open: the one used last, while it exists; else the user's
/// documents, else the home folder.
QString saveFolder();
/// A file was saved there.
void rememberSaveFolder(const QString& folder);

} // namespace settings

} // namespace ferna
