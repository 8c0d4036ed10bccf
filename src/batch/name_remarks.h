#pragma once

#include "task/task.h"

#include <QStringList>

namespace ferna::batch {

/// What the names of a task lose on their way into its report, one line each, with the key of the
/// name in front (English); mostly none.
QStringList nameRemarks(const Task& task);

} // namespace ferna::batch
