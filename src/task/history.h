#pragma once

#include "task/task.h"

#include <deque>

namespace ferna {

/// The steps of the work on a task: whole tasks as values, so that everything of them goes back and
/// forth together.
///
/// Who changes a task pushes no steps here. A form tells `Ferna3::entered()` of any change, and
/// the task is recorded as it stands then (a typed text once its field is left), under a name that
/// the difference gives (`stepName`). A command that knows a better name tells
/// `Ferna3::stepped(name)` in its place, after its change.
class TaskHistory {
public:
    static constexpr std::size_t most = 100; ///< steps that can be undone

    /// Begins with this task; there is nothing to undo.
    void begin(Task task);

    /// The task as it stands now: a step where it differs from the last one. `name` says what the
    /// step was, without it the difference does. True where there was a step.
    bool record(Task now, const QString& name = {});

    /// The same for another task in its place, as one that was opened; always a step.
    void recordAnother(Task now, const QString& name);

    bool canUndo() const { return at_ > 0; }
    bool canRedo() const { return at_ + 1 < steps_.size(); }
    /// What would be undone or done again; only where it can be.
    const QString& undoName() const { return steps_.at(at_).name; }
    const QString& redoName() const { return steps_.at(at_ + 1).name; }
    /// Goes a step back or forth; the task of there.
    const Task& undo() { return steps_.at(--at_).task; }
    const Task& redo() { return steps_.at(++at_).task; }

    /// The task where the history stands, and its text as a file.
    const Task& task() const { return steps_.at(at_).task; }
    const std::string& text() const { return steps_.at(at_).text; }
    /// Which task it is that the steps have worked on, counted by `recordAnother`.
    int number() const { return steps_.at(at_).number; }

private:
    struct Step {
        Task task;
        std::string text;
        QString name; ///< of what has led here
        int number = 0;
    };
    void push(Step step);

    std::deque<Step> steps_;
    std::size_t at_ = 0;
    int numbers_ = 0; ///< of tasks so far
};

} // namespace ferna
