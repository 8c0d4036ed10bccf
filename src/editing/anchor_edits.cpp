#include "editing/anchor_edits.h"

#include "notes/input_notes.h"
#include "runtime/format.h"

#include <cmath>
#include <limits>

namespace ferna::editing {

namespace {

constexpr Double furthest = std::numeric_limits<Integer>::max(); // mm

bool isListed(Single listed, Single cm) {
    return CSng(listed / 10.0) == cm;
}

void putAt(Plyta_i_kotwy& plate, int i, AnchorPlace place) {
    plate.X_kotwy(i) = CSng(place.x / 10.0);
    plate.X_kotwy_mm(i) = CSng(place.x);
    plate.Y_kotwy(i) = CSng(place.y / 10.0);
    plate.Y_kotwy_mm(i) = CSng(place.y);
}

void listTruly(Plyta_i_kotwy& plate) {
    for (int i = 1; i <= plate.Liczba_srub; ++i)
        if (!isListed(plate.X_kotwy_mm(i), plate.X_kotwy(i))
            || !isListed(plate.Y_kotwy_mm(i), plate.Y_kotwy(i)))
            putAt(plate, i, anchorPlace(plate, i));
}

bool isTaken(Double coordinate) {
    return std::fabs(coordinate) <= furthest;
}

} // namespace

AnchorPlace anchorPlace(const Plyta_i_kotwy& plate, int anchor) {
    // A Single of centimetres is not exact: typed millimetres are whole, and a calculation that
    // moves an anchor leaves thousandths.
    const auto millimetres = [](Single cm) {
        return std::round(1e4 * static_cast<Double>(cm)) / 1e3;
    };
    return {millimetres(plate.X_kotwy(anchor)), millimetres(plate.Y_kotwy(anchor))};
}

bool moveAnchors(Plyta_i_kotwy& plate, const Anchors& anchors, int dx, int dy) {
    for (const int anchor : anchors) {
        const AnchorPlace place = anchorPlace(plate, anchor);
        if (!isTaken(place.x + dx) || !isTaken(place.y + dy))
            return false;
    }
    listTruly(plate);
    for (const int anchor : anchors) {
        const AnchorPlace place = anchorPlace(plate, anchor);
        putAt(plate, anchor, {place.x + dx, place.y + dy});
    }
    return true;
}

void removeAnchors(Plyta_i_kotwy& plate, const Anchors& anchors) {
    listTruly(plate);
    for (auto anchor = anchors.rbegin(); anchor != anchors.rend(); ++anchor) {
        for (int i = *anchor; i < plate.Liczba_srub; ++i) {
            putAt(plate, i, anchorPlace(plate, i + 1));
            plate.Fi_kotwy(i) = plate.Fi_kotwy(i + 1);
        }
        plate.Liczba_srub = CInt(plate.Liczba_srub - 1);
    }
}

void setAnchor(Plyta_i_kotwy& plate, int anchor, AnchorPlace place, Integer fi) {
    listTruly(plate);
    putAt(plate, anchor, place);
    plate.Fi_kotwy(anchor) = fi;
}

TypedCoordinate typedCoordinate(const QString& text) {
    try {
        const Double value = CDbl(text);
        if (value != std::nearbyint(value))
            return {0, QStringLiteral("Współrzędna jest w całych milimetrach")};
        if (!isTaken(value))
            return {0, QStringLiteral("Współrzędna wykracza poza zakres od -%1 do %1 mm")
                           .arg(general(furthest))};
        return {value, {}};
    } catch (const RunTimeError&) {
        return {0, QStringLiteral("\"%1\" nie jest liczbą").arg(text)};
    }
}

std::map<int, QString> doubtfulAnchors(const notes::Entered& entered) {
    std::map<int, QString> doubtful;
    for (const notes::Note& note : notes::inputNotes(entered)) {
        const bool marks = note.code == notes::Code::KotwyWJednymMiejscu
                           || note.code == notes::Code::KotwaPozaPlyta
                           || note.code == notes::Code::SrednicaSpozaSzeregu;
        if (!marks)
            continue;
        QString& text = doubtful[note.anchor];
        text += text.isEmpty() ? note.text : u'\n' + note.text;
    }
    return doubtful;
}

} // namespace ferna::editing
