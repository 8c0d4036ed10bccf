#pragma once

#include "batch/section_json.h"
#include "design/input_fields.h"
#include "statics/load_list.h"

#include <optional>
#include <vector>

namespace ferna::batch {

/// The key "Slup" of a task: the loads on the column in their order.
struct ColumnTask {
    struct Load {
        int optTypObciaz; ///< direction 0..2
        int optTypsily;   ///< kind 0..2
        // What is typed over the first texts of the dialog.
        std::optional<QString> load, secondLoad, arm, secondArm;
    };
    std::string path; ///< key of the section
    std::vector<Load> loads;
};

/// Throws TaskError.
ColumnTask readColumnTask(const TaskValue& value, const std::string& path = "Slup");

/// Declares the loads and ends the list: the totals become one more case in the state and in the
/// fields. A run-time error ends the run where it stands. The result has the totals "N", "M1",
/// "M2", "Vx", "Vy" and the lines of the list, "lista", all as texts.
SectionResult runColumnTask(const ColumnTask& task, Stan& stan, InputFields& fields);

} // namespace ferna::batch
