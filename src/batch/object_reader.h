#pragma once

#include "batch/task_error.h"
#include "runtime/numbers.h"

#include <QString>

#include <nlohmann/json.hpp>

#include <initializer_list>
#include <optional>
#include <set>
#include <string>

namespace ferna::batch {

using Json = nlohmann::ordered_json;

/// Takes the keys of one JSON object apart and refuses what does not belong there. Every refusal is
/// a TaskError that names the key and what was expected. Keys that nobody knows are refused at once
/// where all keys are told beforehand, else by `finish`.
class ObjectReader {
public:
    /// Refuses a value that is no object. `path` names it, empty for the task itself.
    ObjectReader(const Json& value, std::string path);
    /// Refuses also an object that holds other keys than these.
    ObjectReader(const Json& value, std::string path, std::initializer_list<const char*> keys);

    bool has(const char* key) const { return value_.contains(key); }
    /// The value of a key that has been checked with `has`.
    const Json& at(const char* key);
    /// The same, refused where the key is missing.
    const Json& required(const char* key);
    std::string pathOf(const std::string& key) const;

    /// A whole number of 16 bits between `least` and `most`.
    Integer integer(const char* key, Integer preset, Integer least = -32768, Integer most = 32767);
    Integer requiredInteger(const char* key);
    double number(const char* key, double preset);
    double requiredNumber(const char* key);
    QString text(const char* key, const QString& preset = {});
    /// One of these texts; the key is required.
    std::string oneOf(const char* key, std::initializer_list<const char*> choices);

    // What is typed into a field of a form; empty without the key.

    /// A number as a text with the locale's decimal sign.
    std::optional<QString> fieldText(const char* key);
    /// The same for a field that is read as a whole number: it must fit 16 bits.
    std::optional<QString> wholeFieldText(const char* key);
    /// A number of a list, `first`..`last`.
    std::optional<int> listNumber(const char* key, int first, int last);

    /// Refuses keys that were not asked for.
    void finish() const;

private:
    std::optional<double> optionalNumber(const char* key);

    const Json& value_;
    std::string path_;
    std::set<std::string, std::less<>> known_;
};

/// A value as a whole number of 16 bits between `least` and `most`.
Integer integerOf(const Json& value, const std::string& path, Integer least = -32768,
                  Integer most = 32767);
double numberOf(const Json& value, const std::string& path);
QString textOf(const Json& value, const std::string& path);
/// A value as an object.
const Json& objectOf(const Json& value, const std::string& path);
/// A value as an array.
const Json& arrayOf(const Json& value, const std::string& path);

} // namespace ferna::batch
