#pragma once

#include "runtime/run_time_error.h"

namespace ferna::batch {

/// A run-time error in English, as everything that the companion itself says: the engineer's texts,
/// messages and notes, are those of the program and Polish. Words of a detail that are not known
/// here, as the name of a file, stay as they are.
QString failureWords(const RunTimeError& failure);

} // namespace ferna::batch
