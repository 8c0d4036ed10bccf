#pragma once

#include "input/forms/Ferna3.h"
#include "task/history.h"
#include "task/kept_tasks.h"

#include <QObject>

#include <map>

namespace ferna {

/// The task that lies on the desk: what the main form and the results have made of it, the file it
/// belongs to, its steps and its kept copy. Told of nothing but changes it keeps everything itself;
/// how it is shown is the menu's business (`TaskMenu`).
class TaskDesk : public QObject {
    Q_OBJECT

public:
    /// `keptFolder`: where the last tasks are kept.
    TaskDesk(Ferna3& form, Dialogs& dialogs, const QString& keptFolder);

    /// The form stands as after a start: from now on its changes are steps.
    void begin();

    /// The task as it is entered now, with what results have added to it.
    Task task() const;

    void beginNew();
    /// Asks for a file and opens it.
    void openByQuestion();
    /// Opens a file. A message names file, line and key where it cannot be; the task stays then.
    bool open(const QString& file);
    /// Saves to the task's file, asking for one where it has none. False where nothing was saved.
    bool save();
    bool saveAs();
    void restore(const KeptTask& kept);

    void undo();
    void redo();
    const TaskHistory& history() const { return history_; }

    /// Takes what was typed last as a step, as where a field is left.
    void record(const QString& name = {});

    /// The file of the task, empty for none.
    QString file() const;
    /// True where the file does not hold what stands.
    bool isChanged() const;
    /// True where there is something to undo, the text that is being typed included.
    bool canUndo() const { return isTyped_ || history_.canUndo(); }
    /// Files opened and saved last, the last one first; only those that are there.
    static QStringList recentFiles();
    std::vector<KeptTask> kept() const { return kept_.all(); }

    // What the results make of the task.
    void labelled(const QString& label);
    void plateWorked(const std::optional<PlateTask>& plate);
    void anchorSelected(const AnchorTask& anchor);
    /// The label, plate and anchor sections of the task; `stan` and `fields` say nothing.
    const Task& sections() const { return sections_; }

Q_SIGNALS:
    /// The task, its steps or its file are others.
    void changed();
    /// Another task lies on the desk.
    void opened();
    /// The task cannot be kept, told once; the text says why.
    void keepingFailed(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// A file and what it holds.
    struct Saved {
        QString file;
        std::string text;
    };

    void watchForm();
    void recordUnlessTyping();
    void recordWhenFree();
    void keep();
    /// Puts another task on the desk, as a step.
    void lay(const Task& task, const QString& step, const QString& file, bool isSaved);
    void show(const Task& task);
    bool saveTo(const QString& file);
    static void remember(const QString& file);
    bool isOfForm(QObject* watched) const;
    bool takeDrop(QEvent* event);

    Ferna3& form_;
    Dialogs& dialogs_;
    Task sections_;
    TaskHistory history_;
    KeptTasks kept_;
    std::map<int, Saved> saved_; ///< by the number of the task
    int keptNumber_ = 0;         ///< of the task that was kept last
    bool begun_ = false;
    bool isTyped_ = false; ///< a typed text is no step yet
    bool typing_ = false;  ///< a key has changed a text since the last look
    bool waiting_ = false; ///< a look is due
    bool failureTold_ = false;
};

} // namespace ferna
