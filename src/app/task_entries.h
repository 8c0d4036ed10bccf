#pragma once

#include "report/forms/FernaWyn.h"
#include "task/forms/task_menu.h"

namespace ferna {

class Dobor_fer;
class Grub_bla;

/// The task's file, its steps and its kept copies in the windows of the program.
class TaskEntries {
public:
    /// `folder` is the program folder, `keptFolder` where the last tasks are kept.
    TaskEntries(Ferna3& form, Stan& stan, Dialogs& dialogs, const QString& folder,
                const QString& keptFolder);

    /// To be called between the loading of the main form and its showing: offers the last task
    /// where the program opens no file.
    void beforeShown(const QString& file);
    /// To be called once it is shown: opens the file, where there is one.
    void shown(const QString& file);

    /// To be called before the results are opened: they offer the label and the sections that the
    /// task has.
    void resultsMade(FernaWyn& results);
    void plateWorked(const Grub_bla& form);
    void anchorSelected(const Dobor_fer& form);
    void labelled(const QString& label) { desk_.labelled(label); }

private:
    void addSections(FernaWyn& results);

    Stan& stan_;
    Dialogs& dialogs_;
    QString folder_;
    TaskDesk desk_;
    TaskMenu menu_;
    bool isOpened_ = false; ///< the task is one that was opened: its label is offered
};

/// Where the tasks are kept that were worked on last: in the user's data folder.
QString keptTasksFolder();

} // namespace ferna
