#pragma once

#include "combinations/combination.h"
#include "task/task.h"

#include <functional>

namespace ferna::batch {

/// How the combinations of a table went.
struct CombinationsEnd {
    QString trouble =
        {}; ///< why the table or the base gives nothing at all; empty where rows were read
    QString remark = {}; ///< what is to be told beside the results
    combinations::RowNumber rows = 0;
    combinations::RowNumber refused = 0;
};

/// Answers each row of a table of combinations for the base of a task: one line of JSON a row, in
/// order, then a summary. Text takes the memory of a few hundred rows, however many there are.
/// `print` gets whole lines, many at once. `table`: a file, or "-" for standard input.
CombinationsEnd runCombinations(const QString& table, const Task& task,
                                const std::function<void(const std::string&)>& print);

} // namespace ferna::batch
