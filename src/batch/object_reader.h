#pragma once

#include "batch/task_error.h"
#include "runtime/numbers.h"

#include <QString>

#include <nlohmann/json.hpp>

#include <set>
#include <string>

namespace ferna::batch {

using Json = nlohmann::ordered_json;

/// Takes the keys of one JSON object apart and refuses what does not belong there. Every refusal is
/// a TaskError that names the key and what was expected. `finish` refuses the keys nobody asked
/// for.
class ObjectReader {
public:
    /// Refuses a value that is no object. `path` names it, empty for the task itself.
    ObjectReader(const Json& value, std::string path);

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
    QString text(const char* key, const QString& preset);

    /// Refuses keys that were not asked for.
    void finish() const;

private:
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
