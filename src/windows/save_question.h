#pragma once

#include "runtime/dialogs.h"

#include <functional>
#include <optional>

class QDialog;
class QWidget;

namespace ferna {

/// Surroundings of a save question: what is done about its boxes while they stand.
struct SaveSurroundings {
    QWidget* parent = nullptr;
    /// The files that a name stands for; each that exists is named before it is replaced.
    std::function<QStringList(const QString& name)> files = [](const QString& name) {
        return QStringList{name};
    };
    /// Runs a dialog.
    std::function<int(QDialog& dialog)> run;
};

/// Asks where to save. The question opens in the folder that was used last, at first in the user's
/// documents; a name without an ending gets that of the format chosen, else the question's own;
/// choosing another format changes the ending of the name; existing files are named and asked
/// about. The path chosen; none where the question was cancelled.
std::optional<QString> askWhereToSave(const SaveQuestion& question,
                                      const SaveSurroundings& surroundings = {});

/// True where a name has an ending of letters, as ".txt"; "Hala 1.2" has none.
bool hasEnding(const QString& name);

} // namespace ferna
