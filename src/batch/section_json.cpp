#include "batch/section_json.h"

#include "runtime/format.h"

#include <algorithm>
#include <cmath>
#include <limits>

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

TaskObject::TaskObject(const TaskValue& value, std::string path,
                       std::initializer_list<const char*> keys)
    : value_(objectOf(value, path)), path_(std::move(path)) {
    for (const TaskValue& part : value.parts()) {
        const auto isKey = [&](const char* key) { return part.key == key; };
        if (std::none_of(keys.begin(), keys.end(), isKey))
            throw TaskError(pathOf(part.key), "unknown key");
    }
}

void TaskObject::require(std::string_view key) const {
    if (!has(key))
        throw TaskError(pathOf(key), "this key is required and is missing");
}

std::optional<double> TaskObject::number(std::string_view key) const {
    return has(key) ? std::optional(numberOf(at(key), {path_, key})) : std::nullopt;
}

std::optional<QString> TaskObject::fieldText(std::string_view key) const {
    const std::optional<double> value = number(key);
    return value ? std::optional(general(*value)) : std::nullopt;
}

std::optional<QString> TaskObject::wholeFieldText(std::string_view key) const {
    const std::optional<double> value = number(key);
    if (!value)
        return std::nullopt;
    const double whole = std::nearbyint(*value);
    if (whole < std::numeric_limits<Integer>::min() || whole > std::numeric_limits<Integer>::max())
        throw TaskError(pathOf(key), "expected a whole number of 16 bits");
    return general(*value);
}

std::optional<int> TaskObject::listNumber(std::string_view key, int first, int last) const {
    if (!has(key))
        return std::nullopt;
    return integerOf(at(key), {path_, key}, CInt(first), CInt(last));
}

QString TaskObject::text(std::string_view key) const {
    return has(key) ? textOf(at(key), {path_, key}) : QString();
}

std::string TaskObject::oneOf(std::string_view key,
                              std::initializer_list<const char*> choices) const {
    require(key);
    std::string expected;
    for (const char* choice : choices) {
        if (at(key).isText() && at(key).text == choice)
            return choice;
        expected += (expected.empty() ? "\"" : " or \"") + std::string(choice) + '"';
    }
    throw TaskError(pathOf(key), "expected " + expected);
}

} // namespace ferna::batch
