#include "notes/input_notes.h"

#include "design/material_tables.h"
#include "notes/stress_words.h"
#include "runtime/format.h"

namespace ferna::notes {

namespace {

const QString mm = QStringLiteral(" mm");

/// An anchor as entered: its place in mm as it is computed.
struct Place {
    Double x = 0;
    Double y = 0;
    Integer fi = 0;
};

Place placeOf(const Plyta_i_kotwy& plate, int i) {
    const auto millimetres = [](Single cm) {
        return std::round(1e4 * static_cast<Double>(cm)) / 1e3; // typed ones are whole
    };
    return {millimetres(plate.X_kotwy(i)), millimetres(plate.Y_kotwy(i)), plate.Fi_kotwy(i)};
}

using Places = ByAnchor<Place>;
Places placesOf(const Plyta_i_kotwy& plate) {
    Places places;
    for (int i = 1; i <= plate.Liczba_srub; ++i)
        places(i) = placeOf(plate, i);
    return places;
}

/// True where two places are nearer to one another than the larger of their diameters.
bool coincide(const Place& a, const Place& b) {
    const Double x = a.x - b.x;
    const Double y = a.y - b.y;
    const Double larger = std::max(a.fi, b.fi);
    return std::fabs(x) < larger && std::fabs(y) < larger && std::hypot(x, y) < larger;
}

QString sizeOf(Integer fi) {
    return u'M' + general(fi);
}

/// Each anchor that stands in the place of an earlier one, with the first such.
void coincidingAnchors(const Entered& entered, const Places& places, Notes& notes) {
    for (int j = 2; j <= entered.plate.Liczba_srub; ++j) {
        const Place& second = places(j);
        for (int i = 1; i < j; ++i) {
            const Place& first = places(i);
            if (!coincide(first, second))
                continue;
            notes.push_back(
                {Code::KotwyWJednymMiejscu, 0, j, 0,
                 QStringLiteral("Kotwy %1 (%2) i %3 (%4) są odległe o %5 mm, mniej niż średnica "
                                "%6 mm: nie zmieszczą się obok siebie, a program liczy obie. Usuń "
                                "jedną z nich albo popraw współrzędne.")
                     .arg(i)
                     .arg(sizeOf(first.fi))
                     .arg(j)
                     .arg(sizeOf(second.fi))
                     .arg(number(std::hypot(first.x - second.x, first.y - second.y)))
                     .arg(std::max(first.fi, second.fi))});
            break;
        }
    }
}

std::optional<Double> sizeFrom(const QString& field) {
    try {
        const Double size = CDbl(field);
        return size > 0 ? std::optional(size) : std::nullopt;
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

void anchorsOffThePlate(const Entered& entered, const Places& places, Notes& notes) {
    const std::optional<Double> length = sizeFrom(entered.fields.Text3);
    const std::optional<Double> width = sizeFrom(entered.fields.Text4);
    if (!length || !width)
        return;
    for (int i = 1; i <= entered.plate.Liczba_srub; ++i) {
        const Place& anchor = places(i);
        const Double toEdge =
            std::min(*length / 2 - std::fabs(anchor.x), *width / 2 - std::fabs(anchor.y));
        const Double radius = std::max<Double>(anchor.fi, 0) / 2;
        if (!(toEdge < radius))
            continue;
        const QString where = QStringLiteral("Kotwa %1 (%2) w miejscu %3 mm ")
                                  .arg(i)
                                  .arg(sizeOf(anchor.fi), place(anchor.x, anchor.y));
        const QString what =
            toEdge < 0
                ? QStringLiteral("stoi %1 mm poza krawędzią płyty %2 x %3 mm")
                      .arg(number(-toEdge), general(*length), general(*width))
                : QStringLiteral("wychodzi poza płytę %1 x %2 mm: jej oś jest %3 mm od krawędzi, "
                                 "a promień ma %4 mm")
                      .arg(general(*length), general(*width), number(toEdge), number(radius));
        notes.push_back(
            {Code::KotwaPozaPlyta, 0, i, 0,
             where + what + QStringLiteral(". Popraw współrzędne albo powiększ płytę.")});
    }
}

void diametersOffTheSeries(const Entered& entered, Notes& notes) {
    for (int i = 1; i <= entered.plate.Liczba_srub; ++i) {
        const Integer fi = entered.plate.Fi_kotwy(i);
        if (coreArea(fi))
            continue;
        notes.push_back(
            {Code::SrednicaSpozaSzeregu, 0, i, 0,
             QStringLiteral(
                 "Kotwa %1: średnica %2 mm nie należy do szeregu 12, 16, 20, 24, 30, 36, "
                 "42, 48, 52, 56, 64, 72, 80 mm. Program nie zna pola jej rdzenia: liczy "
                 "z zerem albo z polem kotwy, która miała ten numer wcześniej. Zmień "
                 "średnicę.")
                 .arg(i)
                 .arg(fi)});
    }
}

void listedElsewhere(const Entered& entered, const Places& places, Notes& notes) {
    const Plyta_i_kotwy& plate = entered.plate;
    const auto same = [](Single listed, Single cm) { return CSng(listed / 10.0) == cm; };
    for (int i = 1; i <= plate.Liczba_srub; ++i) {
        if (same(plate.X_kotwy_mm(i), plate.X_kotwy(i))
            && same(plate.Y_kotwy_mm(i), plate.Y_kotwy(i)))
            continue;
        const Place& computed = places(i);
        notes.push_back(
            {Code::WspolrzedneListy, 0, i, 0,
             QStringLiteral("Kotwa %1: lista i wydruk podają miejsce %2 mm, a program liczy i "
                            "rysuje ją w %3 mm. Tak jest po usunięciu kotwy i po przesunięciu "
                            "ostatniej kotwy przez poszukiwanie. Usuń kotwy od tej w górę i podaj "
                            "je od nowa.")
                 .arg(i)
                 .arg(place(plate.X_kotwy_mm(i), plate.Y_kotwy_mm(i)),
                      place(computed.x, computed.y))});
    }
}

void noCases(const Entered& entered, Notes& notes) {
    if (entered.cases > 0)
        return;
    notes.push_back({Code::ZeroPrzypadkow, 0, 0, 0,
                     QStringLiteral("Liczba schematów obciążenia wynosi %1: wydruk nie będzie "
                                    "zawierał żadnego sprawdzenia. Podaj od 1 do %2 schematów.")
                         .arg(entered.cases)
                         .arg(MaxCases)});
}

void withoutEquilibrium(const Entered& entered, Notes& notes) {
    for (int c = 1; c <= entered.cases; ++c) {
        const auto& found = entered.equilibrium(c);
        if (!found || found->exists)
            continue;
        const equilibrium::Segment& axis = found->tippingAxis;
        notes.push_back(
            {Code::NieStoi, c, 0, 0,
             QStringLiteral("Przypadek %1: nie ma stanu równowagi, słup przewraca się wokół osi od "
                            "%2 do %3 mm. Dodaj kotwy po stronie odrywanej, rozsuń je, powiększ "
                            "płytę albo zwiększ siłę N.")
                 .arg(c)
                 .arg(place(axis[0].x, axis[0].y), place(axis[1].x, axis[1].y))});
    }
}

} // namespace

Notes inputNotes(const Entered& entered) {
    Notes notes;
    const Places places = placesOf(entered.plate);
    withoutEquilibrium(entered, notes);
    coincidingAnchors(entered, places, notes);
    anchorsOffThePlate(entered, places, notes);
    diametersOffTheSeries(entered, notes);
    listedElsewhere(entered, places, notes);
    noCases(entered, notes);
    return notes;
}

} // namespace ferna::notes
