#pragma once

#include "batch/json_writer.h"
#include "task/task.h"
#include "utilisation/utilisation.h"

namespace ferna::batch {

/// The text of an answer, and whether there was one.
struct Answer {
    std::string text;
    bool solved = true;
};

/// Up to which loads the base of a task is borne: per case the line of M1-M2 at its N beside its
/// horizontal forces, its reserves and utilisations; and the lines of N-M1 and N-M2 without
/// horizontal forces. Without areas or strengths {"Blad"} alone, unsolved.
Answer capacityAnswer(Task task);

/// The object of a utilisation: "beton", "rozciaganie", "scinanie", "interakcja", null where
/// infinite.
void writeUtilisation(JsonWriter& json, const Utilisation& used);

/// Adds the case of a task's column. What stopped it; null where nothing did.
Json enterColumn(Task& task);
/// The answer of a task that could not be answered.
Answer unanswered(const Json& failure);
Answer unansweredFor(const std::string& why);

} // namespace ferna::batch
