#include "batch/section_json.h"

namespace ferna::batch {

Json errorJson(const RunTimeError& failure, std::optional<int> przypadek) {
    Json error{{"numer", failure.number()},
               {"tekst", errorTextEnglish(failure.number()).toStdString()}};
    if (!failure.key().empty())
        error["klucz"] = failure.key();
    if (przypadek)
        error["przypadek"] = *przypadek;
    if (!failure.detail().isEmpty())
        error["szczegol"] = failure.detail().toStdString();
    return error;
}

} // namespace ferna::batch
