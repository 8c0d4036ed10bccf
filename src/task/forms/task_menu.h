#pragma once

#include "task/forms/task_desk.h"

class QAction;
class QMenu;

namespace ferna {

class QuietLine;

/// The menu "&Zadanie", the name of the file in the title of the main form, and the quiet line
/// above it that offers the last task after a start.
class TaskMenu : public QObject {
    Q_OBJECT

public:
    TaskMenu(Ferna3& form, TaskDesk& desk);

    /// Offers the last task that was kept, where there is one.
    void offerLastTask();

private:
    void fill(QMenu* menu);
    void fillRecent();
    void renew();
    QAction* entry(QMenu* menu, const QString& caption, const QKeySequence& keys,
                   const std::function<void()>& action);

    Ferna3& form_;
    TaskDesk& desk_;
    QString caption_; ///< of the form, as designed
    QuietLine* line_;
    QMenu* recent_ = nullptr;
    QAction* folder_ = nullptr;
    QAction* undo_ = nullptr;
    QAction* redo_ = nullptr;
};

} // namespace ferna
