#include "app/task_entries.h"

#include "design/typed_names.h"
#include "pages/sketch_files.h"
#include "plate/forms/Grub_bla.h"
#include "runtime/format.h"
#include "selection/forms/Dobor_fer.h"
#include "widgets/environment_stop.h"

#include <QMenu>
#include <QStandardPaths>

namespace ferna {

TaskEntries::TaskEntries(Ferna3& form, Stan& stan, Dialogs& dialogs, const QString& folder,
                         const QString& keptFolder)
    : stan_(stan), dialogs_(dialogs), folder_(folder), desk_(form, dialogs, keptFolder),
      menu_(form, desk_) {
    QObject::connect(&desk_, &TaskDesk::opened, &menu_, [this] { isOpened_ = true; });
}

void TaskEntries::beforeShown(const QString& file) {
    if (file.isEmpty())
        menu_.offerLastTask();
}

void TaskEntries::shown(const QString& file) {
    desk_.begin();
    if (!file.isEmpty() && !desk_.open(file))
        menu_.offerLastTask();
}

void TaskEntries::resultsMade(FernaWyn& results) {
    if (isOpened_)
        results.session().raport().Nazwa_stopy = desk_.sections().Nazwa_stopy.left(longestLabel);
    QAction* const add = results.moreMenu()->addAction(QStringLiteral("&Blacha i kotwa z zadania"));
    QObject::connect(results.moreMenu(), &QMenu::aboutToShow, add, [this, add] {
        const Task& sections = desk_.sections();
        const bool plateDue = sections.plate && stan_.raport.Liczba_wierszy_blachy <= 0;
        const bool anchorDue = sections.anchor && anchorSelectionOffered(stan_);
        add->setEnabled((plateDue && stan_.wyniki.Beton_OK) || anchorDue);
    });
    connectGuarded(add, &QAction::triggered, &results, [this, &results] { addSections(results); });
}

/// Works plate and anchor form as they were worked for the task, and writes what comes of it.
void TaskEntries::addSections(FernaWyn& results) {
    const Task sections = desk_.sections();
    if (sections.plate && stan_.wyniki.Beton_OK && stan_.raport.Liczba_wierszy_blachy <= 0) {
        const WorkedPlate done = workPlate(*sections.plate, stan_, dialogs_);
        if (done.section)
            for (const PlateSketch& sketch : done.section->sketches)
                savePlateSketch(folder_, sketch.image, QString::fromLatin1(sketch.file));
        if (done.failure)
            throw *done.failure;
    }
    if (sections.anchor) {
        ScriptedDialogs answered;
        if (const auto form = selectAnchor(*sections.anchor, stan_, answered))
            saveAnchorSketch(folder_, CInt(form->Picture1));
        for (const ScriptedDialogs::Box& box : answered.messages)
            dialogs_.message(box.text, box.title, box.style);
    }
    results.afterSection();
}

void TaskEntries::plateWorked(const Grub_bla& form) {
    desk_.plateWorked(plateTaskOf(stan_, form.worked()));
}

void TaskEntries::anchorSelected(const Dobor_fer& form) {
    desk_.anchorSelected({form.chosen().tab, general(form.chosen().Grub_laczna)});
}

QString keptTasksFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)
           + QStringLiteral("/odzyskiwanie");
}

} // namespace ferna
