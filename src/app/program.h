#pragma once

#include "app/live_entries.h"
#include "app/reserve_entries.h"
#include "app/task_entries.h"
#include "input/forms/Ferna3.h"
#include "report/forms/FernaWyn.h"
#include "widgets/qt_dialogs.h"

#include <memory>

namespace ferna {

class CombinationEntries;

/// The forms of the program and how one leads to another.
class Program {
public:
    /// `folder` is the program folder, the state that of the last task.
    Program(Stan& stan, QString folder);

    /// Shows the main form, with the task of a file where one is given, and works until the end is
    /// asked for. The exit code.
    int run(const QString& taskFile = {});

private:
    void addMenus();
    void openResults();
    RendererReport render(const QStringList& options = {});
    FernaWyn::Links links();
    QStringList notesOn(const QString& label);

    Stan& stan_;
    QString folder_;
    QtDialogs dialogs_;
    Ferna3 input_;
    TaskEntries task_;
    CombinationEntries* combinations_ = nullptr;
    ReserveEntries reserve_;
    std::unique_ptr<Podglad> view_;
    std::unique_ptr<FernaWyn> results_;
};

} // namespace ferna
