#pragma once

#include "runtime/run_time_error.h"
#include "task/object_reader.h"

namespace ferna::batch {

/// How a section of a task ended.
struct SectionResult {
    Json Blad; ///< the run-time error that stopped it: null, or number and text
};

/// {"numer", "tekst"} with the English text; where they are known also "klucz": the key of the
/// value at fault, "przypadek": the load case, from 1, "szczegol": what was met.
Json errorJson(const RunTimeError& failure, std::optional<int> przypadek = {});

} // namespace ferna::batch
