#pragma once

#include "task/task.h"

namespace ferna {

/// The state in which the main form finds a task that is opened: as after a start, with the choices
/// and anchors of the task. `before` gives what a task does not hold, the catalogue and the
/// remembered steels.
Stan openedState(const Stan& before, const Task& task);

/// The fields of the main form for a task; rows that it does not hold are as the form first shows
/// them.
InputFields openedFields(const Task& task);

/// A task for the column's totals as the form has them: a column that adds a case becomes one that
/// stands in its case. Throws RunTimeError with the key of the load that cannot be taken.
Task withColumnInCase(Task task);

/// A new task beside the present one: its choices of norm, language, RTF and its project stay, the
/// rest is as the form first shows it.
Task newTask(const Task& present);

} // namespace ferna
