#pragma once

#include "batch/object_reader.h"
#include "runtime/run_time_error.h"

namespace ferna::batch {

/// The result part of a section, and the run-time error that stopped it: null, or number and text.
struct SectionResult {
    Json value;
    Json Blad;
};

/// {"numer", "tekst"} with the English text.
Json errorJson(const RunTimeError& failure);

} // namespace ferna::batch
