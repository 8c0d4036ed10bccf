#pragma once

#include "input/forms/Ferna3.h"
#include "report/forms/written_files.h"
#include "sheet/sheet_input.h"

#include <QAction>

namespace ferna {

/// The entry of the calculation sheet in the menu "&Zadanie" of the main form, for a calculation
/// that has ended without results and so opens no results form: its sheet stands on the exact
/// equilibrium. It can be chosen while the task is the one that was calculated.
class UnsolvedSheetEntry : public QObject {
public:
    UnsolvedSheetEntry(Ferna3& form, const Stan& stan, Dialogs& dialogs);

    /// Whether there is a sheet to be saved.
    bool isDue() const;

private:
    /// A calculation as it ended.
    struct Ended {
        Stan stan;
        notes::Record record;
        notes::Entered left; ///< what stood in the form then
        QStringList told;
    };

    void save();
    void renew();

    Ferna3& form_;
    const Stan& stan_;
    Dialogs& dialogs_;
    QAction* entry_;
    WrittenFiles* written_;
    std::optional<Ended> ended_;
};

} // namespace ferna
