#pragma once

#include "batch/capacity_run.h"
#include "batch/range_task.h"

namespace ferna::batch {

/// The lightest bases of a range for the loads, the concrete and the ratio n of a task, whose plate
/// and anchors are not looked at. Unsolved where none is confirmed by the calculation, and {"Blad"}
/// alone where loads or n are no numbers.
Answer smallestAnswer(Task task, const RangeTask& asked);

} // namespace ferna::batch
