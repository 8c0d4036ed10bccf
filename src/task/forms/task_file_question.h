#pragma once

#include <QString>

#include <optional>

class QWidget;

namespace ferna {

inline const QString taskFileEnding = QStringLiteral(".ferna");

/// Asks which task file to open. The question opens where files were saved or opened last.
std::optional<QString> askWhichTask(QWidget* parent);

/// Asks where to save a task; `preset` is the name offered.
std::optional<QString> askWhereToSaveTask(QWidget* parent, const QString& preset);

/// Shows the file in the file manager of the system, with its folder where that knows no files. A
/// stop over `form` tells where there is none.
void showInFileManager(QWidget* form, const QString& file);

} // namespace ferna
