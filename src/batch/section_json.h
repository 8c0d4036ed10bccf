#pragma once

#include "batch/object_reader.h"
#include "runtime/run_time_error.h"

#include <initializer_list>
#include <optional>
#include <string>

namespace ferna::batch {

/// The result part of a section, and the run-time error that stopped it: null, or number and text.
struct SectionResult {
    Json value;
    Json Blad;
};

/// {"numer", "tekst"} with the English text; where they are known also "klucz": the key of the
/// value at fault, "przypadek": the load case, from 1, "szczegol": what was met.
Json errorJson(const RunTimeError& failure, std::optional<int> przypadek = {});

/// One JSON object of a section, whose values are texts of the section's form. Its keys are known
/// beforehand. Every function throws TaskError where the JSON is not as it asks.
class TaskObject {
public:
    /// An object that holds no other keys than these.
    TaskObject(const TaskValue& value, std::string path, std::initializer_list<const char*> keys);

    bool has(std::string_view key) const { return value_.find(key) != nullptr; }
    const TaskValue& at(std::string_view key) const { return *value_.find(key); }
    std::string pathOf(std::string_view key) const { return Place{path_, key}.path(); }
    /// Refuses the object without the key.
    void require(std::string_view key) const;

    /// A number as the text of a field, with the locale's decimal sign; empty without the key.
    std::optional<QString> fieldText(std::string_view key) const;
    /// The same for a field that is read as a whole number: it must fit 16 bits.
    std::optional<QString> wholeFieldText(std::string_view key) const;
    /// A number of a list, `first`..`last`; empty without the key.
    std::optional<int> listNumber(std::string_view key, int first, int last) const;
    /// A text; empty without the key.
    QString text(std::string_view key) const;
    /// One of these texts; the key is required.
    std::string oneOf(std::string_view key, std::initializer_list<const char*> choices) const;

private:
    std::optional<double> number(std::string_view key) const;

    const TaskValue& value_;
    std::string path_;
};

} // namespace ferna::batch
