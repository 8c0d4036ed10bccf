#include "batch/smallest_run.h"

#include "smallest/confirmation.h"
#include "smallest/words.h"

#include <algorithm>

namespace ferna::batch {

namespace {

using smallest::Design;
using smallest::DesignRange;
using smallest::Winner;

void writeAnchors(JsonWriter& json, const Design& design, const DesignRange& range) {
    json.beginArray();
    for (const equilibrium::Point& place :
         anchorPlaces(range, design.length, design.width, design.layout, design.diameter)) {
        json.beginObject();
        json.key("x");
        json.whole(static_cast<int>(place.x));
        json.key("y");
        json.whole(static_cast<int>(place.y));
        json.key("fi");
        json.whole(design.diameter);
        json.endObject();
    }
    json.endArray();
}

void writeWinner(JsonWriter& json, const Winner& winner, const DesignRange& range) {
    const Design& design = winner.design;
    const auto whole = [&](const char* key, int value) {
        json.key(key);
        json.whole(value);
    };
    const auto number = [&](const char* key, double value) {
        json.key(key);
        json.number(value);
    };
    json.beginObject();
    whole("Dlug_plyty_mm", design.length);
    whole("Szer_plyty_mm", design.width);
    whole("Grubosc", design.thickness);
    json.key("Kotwy");
    writeAnchors(json, design, range);
    whole("Nr_stali", design.steel);
    whole("Dlugosc_kotwy", design.anchorLength);
    number("Masa_blachy", design.plateMass);
    number("Masa_kotew", design.anchorMass);
    number("Masa", design.mass());
    json.key("Wytezenie");
    writeUtilisation(json, design.used);
    number("Docisk", design.used.bearingFactor);
    whole("przypadek", design.worstCase);
    json.key("Potwierdzona");
    json.boolean(winner.calculation.confirmed);
    json.key("powod");
    if (winner.calculation.confirmed)
        json.null();
    else
        json.text(winner.calculation.reason);
    json.endObject();
}

} // namespace

Answer smallestAnswer(Task task, const RangeTask& asked) {
    if (const Json failure = enterColumn(task); !failure.is_null())
        return unanswered(failure);
    const std::optional<smallest::Task> given = smallest::enteredTask(task.stan, task.fields);
    if (!given)
        return unansweredFor("the loads or the ratio n are no numbers to work with");
    const smallest::Winners winners = smallest::winners(asked.range, *given, task.stan, task.fields,
                                                        static_cast<std::size_t>(asked.count));
    JsonWriter json(JsonWriter::Layout::Indented);
    json.beginObject();
    const auto count = [&](const char* key, long value) {
        json.key(key);
        json.whole(static_cast<int>(value)); // at most twenty millions
    };
    count("Kandydaci", winners.found.candidates);
    count("Mieszczace_sie", winners.found.placed);
    count("Za_grube", winners.found.tooThick);
    count("Spelniajace", winners.found.passed);
    json.key("Podstawy");
    json.beginArray();
    for (const Winner& winner : winners.all)
        writeWinner(json, winner, asked.range);
    json.endArray();
    json.key("Nie_sprawdzono");
    json.beginArray();
    for (const QString& what : smallest::notChecked())
        json.text(what);
    json.endArray();
    json.endObject();
    return {json.written() + '\n',
            std::any_of(winners.all.begin(), winners.all.end(),
                        [](const Winner& winner) { return winner.calculation.confirmed; })};
}

} // namespace ferna::batch
