#include "task/object_reader.h"

#include "runtime/format.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ferna {

namespace {

/// What was expected, and what stands there.
Complaint expected(const std::string& english, const std::string& polish, const TaskValue& value) {
    std::string text = value.written();
    if (text.size() > 40)
        text = text.substr(0, 37) + "...";
    return {"expected " + english + ", found " + text, "ma tu stać " + polish + ", a stoi " + text};
}

} // namespace

ObjectReader::ObjectReader(const TaskValue& value, std::string path)
    : value_(objectOf(value, path)), next_(value_.parts().begin()), path_(std::move(path)) {}

ObjectReader::ObjectReader(const TaskValue& value, std::string path,
                           std::initializer_list<const char*> keys)
    : ObjectReader(value, std::move(path)) {
    for (const char* key : keys)
        known_.append(key);
    finish();
}

std::string Place::path() const {
    std::string path(whole);
    if (!path.empty())
        path += '.';
    return path += key;
}

std::string ObjectReader::pathOf(std::string_view key) const {
    return Place{path_, key}.path();
}

/// The value of a key, which is known from now on; null where the object lacks it.
const TaskValue* ObjectReader::ask(std::string_view key) {
    known_.append(key);
    const TaskValue::Parts parts = value_.parts();
    const auto hasKey = [key](const TaskValue& part) { return part.key == key; };
    auto found = std::find_if(next_, parts.end(), hasKey);
    if (found == parts.end()) {
        found = std::find_if(parts.begin(), next_, hasKey);
        if (found == next_)
            return nullptr;
    }
    next_ = std::next(found);
    return &*found;
}

const TaskValue& ObjectReader::at(std::string_view key) {
    return *ask(key);
}

const TaskValue& ObjectReader::required(std::string_view key) {
    const TaskValue* const value = ask(key);
    if (value == nullptr)
        throw TaskError(pathOf(key), {"this key is required and is missing",
                                      "brak tego klucza, a jest wymagany"});
    return *value;
}

Integer ObjectReader::integer(std::string_view key, Integer preset, Integer least, Integer most) {
    const TaskValue* const value = ask(key);
    return value == nullptr ? preset : integerOf(*value, {path_, key}, least, most);
}

Integer ObjectReader::requiredInteger(std::string_view key) {
    return integerOf(required(key), {path_, key});
}

double ObjectReader::number(std::string_view key, double preset) {
    const TaskValue* const value = ask(key);
    return value == nullptr ? preset : numberOf(*value, {path_, key});
}

double ObjectReader::requiredNumber(std::string_view key) {
    return numberOf(required(key), {path_, key});
}

QString ObjectReader::text(std::string_view key, const QString& preset) {
    const TaskValue* const value = ask(key);
    return value == nullptr ? preset : textOf(*value, {path_, key});
}

std::string ObjectReader::oneOf(std::string_view key, std::initializer_list<const char*> choices) {
    const TaskValue& value = required(key);
    std::string all;
    std::string polish;
    for (const char* choice : choices) {
        if (value.isText() && value.text == choice)
            return choice;
        const std::string quoted = '"' + std::string(choice) + '"';
        all += (all.empty() ? "" : " or ") + quoted;
        polish += (polish.empty() ? "" : " albo ") + quoted;
    }
    throw TaskError(pathOf(key), {"expected " + all, "ma tu stać " + polish});
}

std::optional<double> ObjectReader::optionalNumber(std::string_view key) {
    const TaskValue* const value = ask(key);
    return value != nullptr ? std::optional(numberOf(*value, {path_, key})) : std::nullopt;
}

std::optional<QString> ObjectReader::fieldText(std::string_view key) {
    const std::optional<double> value = optionalNumber(key);
    return value ? std::optional(general(*value)) : std::nullopt;
}

std::optional<QString> ObjectReader::wholeFieldText(std::string_view key) {
    const std::optional<double> value = optionalNumber(key);
    if (!value)
        return std::nullopt;
    const double whole = std::nearbyint(*value);
    if (whole < std::numeric_limits<Integer>::min() || whole > std::numeric_limits<Integer>::max())
        throw TaskError(pathOf(key), {"expected a whole number of 16 bits",
                                      "ma tu stać liczba całkowita od -32768 do 32767"});
    return general(*value);
}

std::optional<int> ObjectReader::listNumber(std::string_view key, int first, int last) {
    const TaskValue* const value = ask(key);
    if (value == nullptr)
        return std::nullopt;
    return integerOf(*value, {path_, key}, CInt(first), CInt(last));
}

void ObjectReader::finish() const {
    const auto* known = known_.begin();
    for (const TaskValue& part : value_.parts()) {
        const auto* found = std::find(known, known_.end(), part.key);
        if (found == known_.end()) {
            found = std::find(known_.begin(), known, part.key);
            if (found == known)
                throw TaskError(pathOf(part.key),
                                {"unknown key", "nieznany klucz (plik nowszej wersji programu?)"});
        }
        known = found;
    }
}

Integer integerOf(const TaskValue& value, const Place& place, Integer least, Integer most) {
    const bool whole = value.isNumber() && value.number == Int(value.number);
    if (!whole || value.number < least || value.number > most) {
        const std::string from = std::to_string(least);
        const std::string to = std::to_string(most);
        throw TaskError(place.path(), expected("a whole number from " + from + " to " + to,
                                               "liczba całkowita od " + from + " do " + to, value));
    }
    return CInt(value.number);
}

double numberOf(const TaskValue& value, const Place& place) {
    if (!value.isNumber())
        throw TaskError(place.path(), expected("a number", "liczba", value));
    return value.number;
}

QString textOf(const TaskValue& value, const Place& place) {
    if (!value.isText())
        throw TaskError(place.path(), expected("a text", "tekst", value));
    return QString::fromUtf8(value.text.data(), static_cast<qsizetype>(value.text.size()));
}

const TaskValue& objectOf(const TaskValue& value, const std::string& path) {
    if (!value.isObject())
        throw TaskError(path, expected("an object", "obiekt", value));
    return value;
}

const TaskValue& arrayOf(const TaskValue& value, const std::string& path) {
    if (!value.isArray())
        throw TaskError(path, expected("an array", "tablica", value));
    return value;
}

} // namespace ferna
