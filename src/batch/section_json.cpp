#include "batch/section_json.h"

namespace ferna::batch {

Json errorJson(const RunTimeError& failure) {
    return {{"numer", failure.number()},
            {"tekst", errorTextEnglish(failure.number()).toStdString()}};
}

} // namespace ferna::batch
