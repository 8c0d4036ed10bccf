#include "batch/object_reader.h"

#include <algorithm>

namespace ferna::batch {

namespace {

std::string found(const TaskValue& value) {
    std::string text = value.written();
    if (text.size() > 40)
        text = text.substr(0, 37) + "...";
    return ", found " + text;
}

std::string range(Integer least, Integer most) {
    return "expected a whole number from " + std::to_string(least) + " to " + std::to_string(most);
}

} // namespace

ObjectReader::ObjectReader(const TaskValue& value, std::string path)
    : value_(objectOf(value, path)), path_(std::move(path)) {}

std::string ObjectReader::pathOf(const std::string& key) const {
    return path_.empty() ? key : path_ + '.' + key;
}

void ObjectReader::know(const char* key) {
    known_.at(knownKeys_++) = key;
}

const TaskValue& ObjectReader::at(const char* key) {
    know(key);
    return *value_.find(key);
}

const TaskValue& ObjectReader::required(const char* key) {
    if (!has(key))
        throw TaskError(pathOf(key), "this key is required and is missing");
    return at(key);
}

Integer ObjectReader::integer(const char* key, Integer preset, Integer least, Integer most) {
    know(key);
    return has(key) ? integerOf(at(key), pathOf(key), least, most) : preset;
}

Integer ObjectReader::requiredInteger(const char* key) {
    return integerOf(required(key), pathOf(key));
}

double ObjectReader::number(const char* key, double preset) {
    know(key);
    return has(key) ? numberOf(at(key), pathOf(key)) : preset;
}

double ObjectReader::requiredNumber(const char* key) {
    return numberOf(required(key), pathOf(key));
}

QString ObjectReader::text(const char* key, const QString& preset) {
    know(key);
    return has(key) ? textOf(at(key), pathOf(key)) : preset;
}

void ObjectReader::finish() const {
    const auto end = known_.begin() + knownKeys_;
    for (const TaskValue& part : value_.parts())
        if (std::find(known_.begin(), end, part.key) == end)
            throw TaskError(pathOf(std::string(part.key)), "unknown key");
}

Integer integerOf(const TaskValue& value, const std::string& path, Integer least, Integer most) {
    const bool whole = value.isNumber() && value.number == Int(value.number);
    if (!whole || value.number < least || value.number > most)
        throw TaskError(path, range(least, most) + found(value));
    return CInt(value.number);
}

double numberOf(const TaskValue& value, const std::string& path) {
    if (!value.isNumber())
        throw TaskError(path, "expected a number" + found(value));
    return value.number;
}

QString textOf(const TaskValue& value, const std::string& path) {
    if (!value.isText())
        throw TaskError(path, "expected a text" + found(value));
    return QString::fromUtf8(value.text.data(), static_cast<qsizetype>(value.text.size()));
}

const TaskValue& objectOf(const TaskValue& value, const std::string& path) {
    if (!value.isObject())
        throw TaskError(path, "expected an object" + found(value));
    return value;
}

const TaskValue& arrayOf(const TaskValue& value, const std::string& path) {
    if (!value.isArray())
        throw TaskError(path, "expected an array" + found(value));
    return value;
}

} // namespace ferna::batch
