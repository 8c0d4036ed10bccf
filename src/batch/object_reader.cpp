#include "batch/object_reader.h"

#include "runtime/format.h"

#include <cmath>
#include <limits>

namespace ferna::batch {

namespace {

std::string found(const Json& value) {
    std::string text = value.dump(-1, ' ', false, Json::error_handler_t::replace);
    if (text.size() > 40)
        text = text.substr(0, 37) + "...";
    return ", found " + text;
}

std::string range(Integer least, Integer most) {
    return "expected a whole number from " + std::to_string(least) + " to " + std::to_string(most);
}

} // namespace

ObjectReader::ObjectReader(const Json& value, std::string path)
    : value_(objectOf(value, path)), path_(std::move(path)) {}

ObjectReader::ObjectReader(const Json& value, std::string path,
                           std::initializer_list<const char*> keys)
    : ObjectReader(value, std::move(path)) {
    for (const char* key : keys)
        known_.emplace(key);
    finish();
}

std::string ObjectReader::pathOf(const std::string& key) const {
    return path_.empty() ? key : path_ + '.' + key;
}

const Json& ObjectReader::at(const char* key) {
    known_.emplace(key);
    return value_.at(key);
}

const Json& ObjectReader::required(const char* key) {
    if (!has(key))
        throw TaskError(pathOf(key), "this key is required and is missing");
    return at(key);
}

Integer ObjectReader::integer(const char* key, Integer preset, Integer least, Integer most) {
    known_.emplace(key);
    return has(key) ? integerOf(at(key), pathOf(key), least, most) : preset;
}

Integer ObjectReader::requiredInteger(const char* key) {
    return integerOf(required(key), pathOf(key));
}

double ObjectReader::number(const char* key, double preset) {
    known_.emplace(key);
    return has(key) ? numberOf(at(key), pathOf(key)) : preset;
}

double ObjectReader::requiredNumber(const char* key) {
    return numberOf(required(key), pathOf(key));
}

QString ObjectReader::text(const char* key, const QString& preset) {
    known_.emplace(key);
    return has(key) ? textOf(at(key), pathOf(key)) : preset;
}

std::string ObjectReader::oneOf(const char* key, std::initializer_list<const char*> choices) {
    const Json& value = required(key);
    std::string expected;
    for (const char* choice : choices) {
        if (value == choice)
            return choice;
        expected += (expected.empty() ? "\"" : " or \"") + std::string(choice) + '"';
    }
    throw TaskError(pathOf(key), "expected " + expected);
}

std::optional<double> ObjectReader::optionalNumber(const char* key) {
    return has(key) ? std::optional(numberOf(at(key), pathOf(key))) : std::nullopt;
}

std::optional<QString> ObjectReader::fieldText(const char* key) {
    const std::optional<double> value = optionalNumber(key);
    return value ? std::optional(general(*value)) : std::nullopt;
}

std::optional<QString> ObjectReader::wholeFieldText(const char* key) {
    const std::optional<double> value = optionalNumber(key);
    if (!value)
        return std::nullopt;
    const double whole = std::nearbyint(*value);
    if (whole < std::numeric_limits<Integer>::min() || whole > std::numeric_limits<Integer>::max())
        throw TaskError(pathOf(key), "expected a whole number of 16 bits");
    return general(*value);
}

std::optional<int> ObjectReader::listNumber(const char* key, int first, int last) {
    if (!has(key))
        return std::nullopt;
    return integerOf(at(key), pathOf(key), CInt(first), CInt(last));
}

void ObjectReader::finish() const {
    for (const auto& [key, value] : value_.items())
        if (!known_.contains(key))
            throw TaskError(pathOf(key), "unknown key");
}

Integer integerOf(const Json& value, const std::string& path, Integer least, Integer most) {
    const bool whole = value.is_number() && value.get<double>() == Int(value.get<double>());
    if (!whole || value.get<double>() < least || value.get<double>() > most)
        throw TaskError(path, range(least, most) + found(value));
    return CInt(value.get<double>());
}

double numberOf(const Json& value, const std::string& path) {
    if (!value.is_number())
        throw TaskError(path, "expected a number" + found(value));
    return value.get<double>();
}

QString textOf(const Json& value, const std::string& path) {
    if (!value.is_string())
        throw TaskError(path, "expected a text" + found(value));
    return QString::fromStdString(value.get_ref<const std::string&>());
}

const Json& objectOf(const Json& value, const std::string& path) {
    if (!value.is_object())
        throw TaskError(path, "expected an object" + found(value));
    return value;
}

const Json& arrayOf(const Json& value, const std::string& path) {
    if (!value.is_array())
        throw TaskError(path, "expected an array" + found(value));
    return value;
}

} // namespace ferna::batch
