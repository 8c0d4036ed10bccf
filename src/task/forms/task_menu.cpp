#include "task/forms/task_menu.h"

#include "task/forms/quiet_line.h"
#include "task/forms/task_file_question.h"
#include "widgets/environment_stop.h"

#include <QBoxLayout>
#include <QFileInfo>
#include <QMenu>

namespace ferna {

namespace {

/// A name as a menu shows it: a "&" is a letter there.
QString menuText(QString name) {
    return name.replace(u'&', QStringLiteral("&&"));
}

} // namespace

TaskMenu::TaskMenu(Ferna3& form, TaskDesk& desk)
    : form_(form), desk_(desk), caption_(form.windowTitle()), line_(new QuietLine(&form)) {
    fill(form.menus().task);
    if (auto* const layout = qobject_cast<QBoxLayout*>(form.layout()))
        layout->insertWidget(0, line_);
    connect(&desk, &TaskDesk::changed, this, &TaskMenu::renew);
    connect(&desk, &TaskDesk::opened, line_, &QWidget::hide);
    connect(&desk, &TaskDesk::keepingFailed, this,
            [this](const QString& text) { line_->tell(text); });
    connect(&form, &Ferna3::calculating, line_, &QWidget::hide);
    connect(form.menus().task, &QMenu::aboutToShow, this, [this] {
        desk_.record(); // the field with the focus may have a step to name
        fillRecent();
    });
}

QAction* TaskMenu::entry(QMenu* menu, const QString& caption, const QKeySequence& keys,
                         const std::function<void()>& action) {
    QAction* const made = menu->addAction(caption);
    made->setShortcut(keys);
    connectGuarded(made, &QAction::triggered, &form_, action);
    return made;
}

void TaskMenu::fill(QMenu* menu) {
    entry(menu, QStringLiteral("&Nowe"), QKeySequence(QStringLiteral("Ctrl+N")),
          [this] { desk_.beginNew(); });
    entry(menu, QStringLiteral("&Otwórz..."), QKeySequence(QStringLiteral("Ctrl+O")),
          [this] { desk_.openByQuestion(); });
    recent_ = menu->addMenu(QStringLiteral("O&statnie"));
    menu->addSeparator();
    entry(menu, QStringLiteral("&Zapisz"), QKeySequence(QStringLiteral("Ctrl+S")),
          [this] { desk_.save(); });
    entry(menu, QStringLiteral("Zapisz &jako..."), QKeySequence(QStringLiteral("Ctrl+Shift+S")),
          [this] { desk_.saveAs(); });
    folder_ = entry(menu, QStringLiteral("&Pokaż w folderze"), {},
                    [this] { showInFileManager(&form_, desk_.file()); });
    menu->addSeparator();
    undo_ = entry(menu, {}, QKeySequence(QStringLiteral("Ctrl+Z")), [this] { desk_.undo(); });
    redo_ = entry(menu, {}, QKeySequence(QStringLiteral("Ctrl+Y")), [this] { desk_.redo(); });
    redo_->setShortcuts(
        {QKeySequence(QStringLiteral("Ctrl+Y")), QKeySequence(QStringLiteral("Ctrl+Shift+Z"))});
}

void TaskMenu::fillRecent() {
    recent_->clear();
    for (const QString& file : TaskDesk::recentFiles())
        connectGuarded(recent_->addAction(menuText(file)), &QAction::triggered, &form_,
                       [this, file] { desk_.open(file); });
    const std::vector<KeptTask> kept = desk_.kept();
    if (!kept.empty())
        recent_->addSection(QStringLiteral("Kopie ostatnich zadań"));
    const QString before = QStringLiteral("Ostatnie zadanie: ");
    for (const KeptTask& one : kept)
        connectGuarded(recent_->addAction(
                           menuText(offerOf(one, QDateTime::currentDateTime()).mid(before.size()))),
                       &QAction::triggered, &form_, [this, one] { desk_.restore(one); });
    recent_->setEnabled(!recent_->isEmpty());
}

void TaskMenu::offerLastTask() {
    const std::vector<KeptTask> kept = desk_.kept();
    if (kept.empty())
        return;
    line_->offer(offerOf(kept.front(), QDateTime::currentDateTime()), QStringLiteral("P&rzywróć"),
                 [this, last = kept.front()] { guarded(&form_, [&] { desk_.restore(last); }); });
}

void TaskMenu::renew() {
    const QString file = desk_.file();
    const bool isChanged = desk_.isChanged();
    QString title = caption_;
    if (!file.isEmpty())
        title += QStringLiteral(" - ") + QFileInfo(file).fileName();
    else if (isChanged)
        title += QStringLiteral(" - bez nazwy");
    form_.setWindowTitle(isChanged ? title + u'*' : title);
    folder_->setEnabled(!file.isEmpty());
    const TaskHistory& history = desk_.history();
    undo_->setEnabled(desk_.canUndo());
    undo_->setText(history.canUndo() ? QStringLiteral("&Cofnij: ") + menuText(history.undoName())
                                     : QStringLiteral("&Cofnij"));
    redo_->setEnabled(history.canRedo());
    redo_->setText(history.canRedo() ? QStringLiteral("Ponó&w: ") + menuText(history.redoName())
                                     : QStringLiteral("Ponó&w"));
    recent_->setEnabled(true);
}

} // namespace ferna
