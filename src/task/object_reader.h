#pragma once

#include "runtime/numbers.h"
#include "task/task_error.h"
#include "task/task_value.h"

#include <QString>
#include <QVarLengthArray>

#include <nlohmann/json.hpp>

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace ferna {

using Json = nlohmann::ordered_json;

/// Takes the keys of one JSON object apart and refuses what does not belong there. Every refusal is
/// a TaskError that names the key and what was expected. Keys that nobody knows are refused at once
/// where all keys are told beforehand, else by `finish`.
class ObjectReader {
public:
    /// Refuses a value that is no object. `path` names it, empty for the task itself.
    ObjectReader(const TaskValue& value, std::string path);
    /// Refuses also an object that holds other keys than these.
    ObjectReader(const TaskValue& value, std::string path, std::initializer_list<const char*> keys);

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
    QString text(std::string_view key, const QString& preset = {});
    /// One of these texts; the key is required.
    std::string oneOf(std::string_view key, std::initializer_list<const char*> choices);

    // What is typed into a field of a form; empty without the key.

    /// A number as a text with the locale's decimal sign.
    std::optional<QString> fieldText(std::string_view key);
    /// The same for a field that is read as a whole number: it must fit 16 bits.
    std::optional<QString> wholeFieldText(std::string_view key);
    /// A number of a list, `first`..`last`.
    std::optional<int> listNumber(std::string_view key, int first, int last);

    /// Refuses keys that were not asked for.
    void finish() const;

private:
    std::optional<double> optionalNumber(std::string_view key);

    const TaskValue* ask(std::string_view key);

    static constexpr qsizetype mostKeys = 48; // that are told and asked for; more are no error
    const TaskValue& value_;
    TaskValue::Parts::Iterator next_; // keys mostly stand in the order in which they are asked for
    std::string path_;
    QVarLengthArray<std::string_view, mostKeys> known_;
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

} // namespace ferna
