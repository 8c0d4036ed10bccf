#include "batch/capacity_run.h"

#include "batch/column_section.h"
#include "capacity/capacity_line.h"

#include <cmath>

namespace ferna::batch {

namespace {

const char* wordOf(Border border) {
    switch (border) {
    case Border::Concrete:
        return "beton";
    case Border::Tension:
        return "rozciaganie";
    case Border::Interaction:
        return "interakcja";
    case Border::Tipping:
        break;
    }
    return "rownowaga";
}

/// No sign on a nought.
void writeNumber(JsonWriter& json, const char* key, double value) {
    json.key(key);
    json.number(value + 0.0);
}

void writePoint(JsonWriter& json, const LinePoint& point, bool isAxial, Moment moment) {
    json.beginObject();
    if (isAxial)
        writeNumber(json, "N", point.load.N);
    if (!isAxial || moment == Moment::M1)
        writeNumber(json, "M1", point.load.M1);
    if (!isAxial || moment == Moment::M2)
        writeNumber(json, "M2", point.load.M2);
    json.key("granica");
    json.text(QString::fromLatin1(wordOf(point.border)));
    if (!isAxial)
        writeNumber(json, "scinanie", point.used.shear);
    json.endObject();
}

void writeAxial(JsonWriter& json, const char* key, const Strength& strength, Moment moment) {
    json.key(key);
    json.beginArray();
    for (const LinePoint& point : axialLine(strength, moment).points)
        writePoint(json, point, true, moment);
    json.endArray();
}

/// How many times the moments of a load may grow at its N, from the line's centre.
double momentFactor(const Strength& strength, const equilibrium::Load& load, const Shear& shear) {
    const std::optional<LinePoint> end = onMomentLine(strength, load, shear);
    if (!end)
        return HUGE_VAL;
    const equilibrium::Load centre = easiestLoad(strength, load.N);
    return std::hypot(end->load.M1 - centre.M1, end->load.M2 - centre.M2)
           / std::hypot(load.M1 - centre.M1, load.M2 - centre.M2);
}

void writeCase(JsonWriter& json, const Strength& strength, const equilibrium::Load& load,
               const Shear& shear) {
    json.beginObject();
    writeNumber(json, "N", load.N);
    writeNumber(json, "V", std::hypot(shear.Vx, shear.Vy));
    const std::optional<Utilisation> used = strength.used(load, shear);
    json.key("Wytezenie");
    if (used)
        writeUtilisation(json, *used);
    else
        json.null();
    json.key("kotwa");
    json.whole(used ? used->anchor : 0);
    writeNumber(json, "zapas", loadFactor(strength, load, shear));
    writeNumber(json, "zapas_momentow", momentFactor(strength, load, shear));
    const CapacityLine line = momentLine(strength, load.N, shear);
    json.key("srodek");
    json.beginObject();
    writeNumber(json, "M1", line.centre.M1);
    writeNumber(json, "M2", line.centre.M2);
    json.endObject();
    json.key("Linia");
    json.beginArray();
    for (const LinePoint& point : line.points)
        writePoint(json, point, false, Moment::M1);
    json.endArray();
    json.endObject();
}

} // namespace

void writeUtilisation(JsonWriter& json, const Utilisation& used) {
    json.beginObject();
    writeNumber(json, "beton", used.concrete);
    writeNumber(json, "rozciaganie", used.tension);
    writeNumber(json, "scinanie", used.shear);
    writeNumber(json, "interakcja", used.interaction);
    json.endObject();
}

Json enterColumn(Task& task) {
    return task.column ? runColumnTask(*task.column, task.stan, task.fields).Blad : Json();
}

Answer unanswered(const Json& failure) {
    JsonWriter json(JsonWriter::Layout::Indented);
    json.beginObject();
    json.key("Blad");
    json.value(failure);
    json.endObject();
    return {json.written() + '\n', false};
}

Answer unansweredFor(const std::string& why) {
    return unanswered(Json{{"numer", 0}, {"tekst", why}});
}

Answer capacityAnswer(Task task) {
    if (const Json failure = enterColumn(task); !failure.is_null())
        return unanswered(failure);
    const std::optional<Strength> strength = enteredStrength(task.stan, task.fields);
    if (!strength)
        return unansweredFor("the base has no areas or its steel no strength: plate, ratio n, "
                             "diameters or steel");
    JsonWriter json(JsonWriter::Layout::Indented);
    json.beginObject();
    json.key("Przypadki");
    json.beginArray();
    for (int c = 1; c <= task.stan.obciazenia.Liczba_przyp; ++c) {
        const std::optional<equilibrium::Load> load = enteredLoad(task.fields, c);
        const std::optional<Shear> shear = enteredShear(task.fields, c);
        if (load && shear)
            writeCase(json, *strength, *load, *shear);
        else
            json.null();
    }
    json.endArray();
    writeAxial(json, "N_M1", *strength, Moment::M1);
    writeAxial(json, "N_M2", *strength, Moment::M2);
    json.endObject();
    return {json.written() + '\n', true};
}

} // namespace ferna::batch
