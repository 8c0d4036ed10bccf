#pragma once

#include "runtime/run_time_error.h"
#include "task/object_reader.h"

namespace ferna::batch {

/// The result part of a section, and the run-time error that stopped it: null, or number and text.
struct SectionResult {
    Json value;
    Json Blad;
};

/// {"numer", "tekst"} with the English text; where they are known also "klucz": the key of the
/// value at fault, "przypadek": the load case, from 1, "szczegol": what was met.
Json errorJson(const RunTimeError& failure, std::optional<int> przypadek = {});

} // namespace ferna::batch
