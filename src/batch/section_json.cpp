#include "batch/section_json.h"

#include "runtime/format.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ferna::batch {

Json errorJson(const RunTimeError& failure) {
    return {{"numer", failure.number()},
            {"tekst", errorTextEnglish(failure.number()).toStdString()}};
}

TaskObject::TaskObject(const Json& value, std::string path, std::initializer_list<const char*> keys)
    : value_(value), path_(std::move(path)) {
    if (!value.is_object())
        throw TaskError(path_, "expected an object");
    for (const auto& item : value.items()) {
        const auto isKey = [&](const char* key) { return item.key() == key; };
        if (std::none_of(keys.begin(), keys.end(), isKey))
            throw TaskError(pathOf(item.key()), "unknown key");
    }
}

void TaskObject::refuse(const std::string& key, const std::string& expected) const {
    throw TaskError(pathOf(key), "expected " + expected);
}

void TaskObject::require(const char* key) const {
    if (!has(key))
        throw TaskError(pathOf(key), "this key is required and is missing");
}

std::optional<double> TaskObject::number(const char* key) const {
    if (!has(key))
        return std::nullopt;
    const Json& value = at(key);
    if (!value.is_number())
        refuse(key, "a number");
    return value.get<double>();
}

std::optional<QString> TaskObject::fieldText(const char* key) const {
    const std::optional<double> value = number(key);
    return value ? std::optional(general(*value)) : std::nullopt;
}

std::optional<QString> TaskObject::wholeFieldText(const char* key) const {
    const std::optional<double> value = number(key);
    if (!value)
        return std::nullopt;
    const double whole = std::nearbyint(*value);
    if (whole < std::numeric_limits<Integer>::min() || whole > std::numeric_limits<Integer>::max())
        refuse(key, "a whole number of 16 bits");
    return general(*value);
}

std::optional<int> TaskObject::listNumber(const char* key, int first, int last) const {
    const std::optional<double> value = number(key);
    if (!value)
        return std::nullopt;
    if (*value != std::nearbyint(*value) || *value < first || *value > last)
        refuse(key, "a whole number " + std::to_string(first) + ".." + std::to_string(last));
    return static_cast<int>(*value);
}

QString TaskObject::text(const char* key) const {
    if (!has(key))
        return {};
    if (!at(key).is_string())
        refuse(key, "a text");
    return QString::fromStdString(at(key).get<std::string>());
}

std::string TaskObject::oneOf(const char* key, std::initializer_list<const char*> choices) const {
    require(key);
    std::string expected;
    for (const char* choice : choices) {
        if (at(key) == choice)
            return choice;
        expected += (expected.empty() ? "\"" : " or \"") + std::string(choice) + '"';
    }
    refuse(key, expected);
}

} // namespace ferna::batch
