#include "batch/range_task.h"

#include "runtime/format.h"
#include "smallest/words.h"

namespace ferna::batch {

namespace {

using smallest::DesignRange;
using smallest::Sizes;

Sizes readSizes(ObjectReader& range, const char* key) {
    ObjectReader sizes(range.required(key), key, {"od", "do", "co"});
    const auto size = [&](const char* name) {
        sizes.required(name);
        return int{sizes.integer(name, 0, 1)};
    };
    const Sizes found{size("od"), size("do"), size("co")};
    if (found.to < found.from)
        throw TaskError(sizes.pathOf("do"),
                        {"expected at least \"od\"", "ma być co najmniej tyle, co \"od\""});
    return found;
}

template <typename Number>
void readList(ObjectReader& range, const char* key, std::vector<Number>& list, Integer least,
              Integer most) {
    if (!range.has(key))
        return;
    const TaskValue& values = arrayOf(range.at(key), key);
    if (values.count == 0)
        throw TaskError(key, {"expected at least one", "potrzebny jest co najmniej jeden"});
    list.clear();
    for (const TaskValue& value : values.parts())
        list.push_back(integerOf(value, {key, std::to_string(list.size())}, least, most));
}

double readBounded(ObjectReader& object, const char* key, double preset, double least,
                   double most) {
    const double value = object.number(key, preset);
    if (!(value >= least && value <= most)) {
        const auto bounds = [&](const char* from, const char* to) {
            return from + general(least).toStdString() + to + general(most).toStdString();
        };
        throw TaskError(object.pathOf(key), {bounds("expected a number from ", " to "),
                                             bounds("ma tu stać liczba od ", " do ")});
    }
    return value;
}

void readColumn(ObjectReader& task, DesignRange& range) {
    ObjectReader column(task.required("Slup"), "Slup", {"h", "b"});
    column.required("h");
    column.required("b");
    range.columnLength = column.integer("h", 0, 0);
    range.columnWidth = column.integer("b", 0, 0);
}

void readDistances(ObjectReader& task, DesignRange& range) {
    if (!task.has("Odleglosci"))
        return;
    ObjectReader distances(task.at("Odleglosci"), "Odleglosci",
                           {"krawedz", "krawedz_mm", "rozstaw", "slup"});
    range.edge = readBounded(distances, "krawedz", range.edge, 0, 100);
    range.leastEdge = distances.integer("krawedz_mm", CInt(range.leastEdge), 0, 1000);
    range.spacing = readBounded(distances, "rozstaw", range.spacing, 0, 100);
    range.clear = readBounded(distances, "slup", range.clear, 0, 100);
}

void refuseWhatIsLeft(const DesignRange& range) {
    using smallest::RangePart;
    const std::optional<RangePart> wrong = wrongPart(range);
    if (!wrong)
        return;
    const std::string polish = smallest::wordsOf(*wrong).toStdString();
    if (wrong == RangePart::Layouts)
        throw TaskError("Kotwy", {"expected numbers of anchors among 4, 6, 8, 12", polish});
    if (wrong == RangePart::Diameters)
        throw TaskError(
            "Srednice",
            {"expected diameters among 12, 16, 20, 24, 30, 36, 42, 48, 52, 56, 64, 72, 80",
             polish});
    if (wrong == RangePart::TooMany)
        throw TaskError("",
                        {"expected at most " + std::to_string(smallest::mostCandidates)
                             + " candidates, found " + std::to_string(smallest::candidates(range)),
                         polish});
    throw TaskError("", {"expected a range that can be worked with", polish});
}

} // namespace

RangeTask readRange(const TaskValue& json) {
    RangeTask out;
    DesignRange& range = out.range;
    ObjectReader task(json, "");
    readColumn(task, range);
    range.length = readSizes(task, "Dlugosc");
    if (task.has("Szerokosc") == task.has("Proporcja"))
        throw TaskError("", {"expected either \"Szerokosc\" or \"Proporcja\"",
                             "ma stać albo \"Szerokosc\", albo \"Proporcja\""});
    if (task.has("Szerokosc"))
        range.width = readSizes(task, "Szerokosc");
    else
        range.ratio = readBounded(task, "Proporcja", 1, 0.05, 1);
    readList(task, "Kotwy", range.layouts, 4, 12);
    readList(task, "Srednice", range.diameters, 12, 80);
    readList(task, "Stale", range.steels, 1, userSteel);
    readDistances(task, range);
    range.pressure = readBounded(task, "Docisk", range.pressure, 1, 2);
    range.plateSteel = task.integer("Nr_stali_blachy", range.plateSteel, 1, 5);
    range.leastThickness = task.integer("Grubosc", CInt(range.leastThickness), 1, 100);
    range.stiffened = task.integer("Zebra", 0, 0, 1) == 1;
    range.grout = task.integer("Podlewka", CInt(range.grout), 0, 500);
    out.count = task.integer("Ile", CInt(out.count), 1, 50);
    task.finish();
    refuseWhatIsLeft(range);
    return out;
}

} // namespace ferna::batch
