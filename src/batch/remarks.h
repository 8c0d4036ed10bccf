#pragma once

#include "batch/task_run.h"

#include <QStringList>

namespace ferna::batch {

/// What whoever called for one task must not overlook, a line each: the message boxes of the
/// calculation with their titles, the run-time error that stopped it, and every section that the
/// task asks for and the report does not have. Empty where all went as asked.
QStringList remarksOf(const ComputedTask& done);

} // namespace ferna::batch
