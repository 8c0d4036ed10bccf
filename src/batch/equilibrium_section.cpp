#include "batch/equilibrium_section.h"

#include <initializer_list>

namespace ferna::batch {

namespace {

/// No sign on a nought.
void plain(JsonWriter& json, double value) {
    json.number(value + 0.0);
}

void writeNumbers(JsonWriter& json, std::initializer_list<double> numbers) {
    json.beginArray();
    for (const double number : numbers)
        plain(json, number);
    json.endArray();
}

void writeSegment(JsonWriter& json, const equilibrium::Segment& segment) {
    json.beginArray();
    for (const equilibrium::Point& point : segment)
        writeNumbers(json, {point.x, point.y});
    json.endArray();
}

void writeStresses(JsonWriter& json, const equilibrium::Result& found, int anchors) {
    json.key("Sigma_b");
    plain(json, found.sigmaConcrete);
    json.key("Sigma_kotwy");
    json.beginArray();
    for (int i = 0; i < anchors; ++i)
        plain(json, found.sigmaAnchor.at(static_cast<std::size_t>(i)));
    json.endArray();
    json.key("Plaszczyzna");
    writeNumbers(json, {found.plane.s0, found.plane.sx, found.plane.sy});
    json.key("Linia");
    if (found.neutralLine)
        writeSegment(json, *found.neutralLine);
    else
        json.null();
    json.key("Reszta");
    plain(json, found.residual);
}

void writeEquilibrium(JsonWriter& json, const equilibrium::Result& found, int anchors) {
    json.beginObject();
    json.key("istnieje");
    json.boolean(found.exists);
    if (found.exists) {
        writeStresses(json, found, anchors);
    } else {
        json.key("os");
        writeSegment(json, found.tippingAxis);
    }
    json.endObject();
}

} // namespace

void writeEquilibria(JsonWriter& json, const EnteredEquilibria& found) {
    if (!found.hasBase) {
        json.null();
        return;
    }
    json.beginArray();
    for (int c = 0; c < found.cases; ++c)
        if (const auto& one = found.byCase.at(static_cast<std::size_t>(c)))
            writeEquilibrium(json, *one, found.anchors);
        else
            json.null();
    json.endArray();
}

} // namespace ferna::batch
