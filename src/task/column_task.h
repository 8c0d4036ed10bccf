#pragma once

#include "design/input_fields.h"
#include "runtime/run_time_error.h"
#include "statics/load_list.h"
#include "task/object_reader.h"

#include <optional>
#include <vector>

namespace ferna {

/// The key "Slup" of a task: the loads on the column in their order.
struct ColumnTask {
    struct Load {
        int optTypObciaz; ///< direction 0..2
        int optTypsily;   ///< kind 0..2
        // What is typed over the first texts of the dialog.
        std::optional<QString> load, secondLoad, arm, secondArm;
    };
    std::string path; ///< key of the section
    /// "Slup_przypadek": the case, from 1, in which the totals stand already; 0 where they become
    /// one more case.
    int inCase = 0;
    std::vector<Load> loads;
};

/// Throws TaskError.
ColumnTask readColumnTask(const TaskValue& value, const std::string& path = "Slup");

/// The key's value.
Json columnTaskJson(const ColumnTask& task);

/// The loads that stand declared, as a task would declare them.
ColumnTask columnTaskOf(const Stan_statyki& loads, int inCase);

/// What declaring the loads of a column leaves behind.
struct DeclaredLoads {
    Stan_statyki loads;
    StaticsForm form;
    std::optional<RunTimeError> failure; ///< what stopped it, with the key of the load
};

/// Declares the loads and ends the list: the totals become one more case in the state and in the
/// fields, unless they stand in one already. A run-time error ends the run where it stands.
DeclaredLoads declareLoads(const ColumnTask& task, Stan& stan, InputFields& fields);

} // namespace ferna
