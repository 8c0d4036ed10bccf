#pragma once

#include "batch/task_run.h"

#include <string>
#include <vector>

namespace ferna::batch {

/// What whoever called for one task must not overlook, one line each without its end: the message
/// boxes of the calculation with their titles, the run-time error that stopped it, and every
/// section that the task asks for and the report does not have. Empty where all went as asked.
std::vector<std::string> remarksOf(const ComputedTask& done);

} // namespace ferna::batch
