#pragma once

#include "smallest/design_range.h"
#include "task/object_reader.h"

namespace ferna::batch {

/// The range of a search for the smallest base, and how many designs are wanted.
struct RangeTask {
    smallest::DesignRange range;
    int count = 10; ///< "Ile"
};

/// JSON to a range. Throws TaskError for unknown keys, wrong types, missing keys, values out of
/// their bounds, and a range of more candidates than are looked at.
RangeTask readRange(const TaskValue& json);

} // namespace ferna::batch
