#pragma once

#include "design/input_fields.h"
#include "design/user_steels.h"
#include "task/anchor_task.h"
#include "task/column_task.h"
#include "task/object_reader.h"
#include "task/plate_task.h"

#include <string>
#include <string_view>

namespace ferna {

/// One column base as a task describes it: the state as an engineer would have set it before
/// pressing "Oblicz", and the fields of the main form as typed.
struct Task {
    Stan stan;
    InputFields fields;
    AnchorSteelFields steel; ///< typed into the dialog of the user's steel
    QString Nazwa_stopy;
    std::optional<ColumnTask> column; ///< "Slup"
    std::optional<PlateTask> plate;   ///< "Blacha"
    std::optional<AnchorTask> anchor; ///< "Kotwa"
};

/// True where the column's totals become one more case.
inline bool addsCase(const Task& task) {
    return task.column && task.column->inCase == 0;
}

/// What a task must say of its load cases.
enum class TaskCases {
    Required, ///< 1 to 6, a column's among them
    Elsewhere ///< they come from somewhere else: none need be given, those given are checked
};

/// JSON to a task. Throws TaskError for what the companion refuses: unknown keys, wrong types,
/// missing keys, list numbers outside their lists, more than 20 anchors or 6 cases, whole numbers
/// beyond 16 bits. Everything else goes to the calculation as if typed. Numbers become field texts
/// with the decimal sign of the process.
Task readTask(const TaskValue& json, TaskCases cases = TaskCases::Required);

/// The task as the text of a file, UTF-8: the same bytes for the same task. Keys that have their
/// presets are left out but the numbers that name the task's choices; typed texts that are no
/// numbers, and rows behind the number of cases, stand under "Wpisane".
std::string taskText(const Task& task);

/// The line (from 1) of a task's text on which the value of a key path stands, 1 where it is not
/// found.
int lineOf(std::string_view text, const std::string& path);

} // namespace ferna
