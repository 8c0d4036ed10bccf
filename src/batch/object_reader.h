#pragma once

#include "batch/task_error.h"
#include "batch/task_value.h"
#include "runtime/numbers.h"

#include <QString>

#include <nlohmann/json.hpp>

#include <array>
#include <string>
#include <string_view>

namespace ferna::batch {

using Json = nlohmann::ordered_json;

/// Takes the keys of one JSON object apart and refuses what does not belong there. Every refusal is
/// a TaskError that names the key and what was expected. `finish` refuses the keys nobody asked
/// for.
class ObjectReader {
public:
    /// Refuses a value that is no object. `path` names it, empty for the task itself.
    ObjectReader(const TaskValue& value, std::string path);

    bool has(std::string_view key) const { return value_.find(key) != nullptr; }
    /// The value of a key that has been checked with `has`.
    const TaskValue& at(std::string_view key);
    /// The same, refused where the key is missing.
    const TaskValue& required(std::string_view key);
    std::string pathOf(std::string_view key) const;

    /// A whole number of 16 bits between `least` and `most`.
    Integer integer(std::string_view key, Integer preset, Integer least = -32768,
                    Integer most = 32767);
    Integer requiredInteger(std::string_view key);
    double number(std::string_view key, double preset);
    double requiredNumber(std::string_view key);
    QString text(std::string_view key, const QString& preset);

    /// Refuses keys that were not asked for.
    void finish() const;

private:
    const TaskValue& value_;
    std::string path_;
    const TaskValue* ask(std::string_view key);

    static constexpr std::size_t mostKeys = 32; // keys that an object may have
    std::array<std::string_view, mostKeys> known_;
    std::size_t knownKeys_ = 0;
};

/// Where a value stands: its key in an object or array of that path.
struct Place {
    std::string_view whole;
    std::string_view key;

    std::string path() const;
};

/// A value as a whole number of 16 bits between `least` and `most`.
Integer integerOf(const TaskValue& value, const Place& place, Integer least = -32768,
                  Integer most = 32767);
double numberOf(const TaskValue& value, const Place& place);
QString textOf(const TaskValue& value, const Place& place);
/// A value as an object.
const TaskValue& objectOf(const TaskValue& value, const std::string& path);
/// A value as an array.
const TaskValue& arrayOf(const TaskValue& value, const std::string& path);

} // namespace ferna::batch
