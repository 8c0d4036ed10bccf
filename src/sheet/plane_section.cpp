#include "design/sign_class.h"
#include "sheet/descriptions.h"
#include "sheet/numbers.h"
#include "sheet/sections.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace ferna::sheet {

namespace {

const QString MPaPerMm = QStringLiteral("MPa/mm");

/// The two ends of a neutral line, with its angle.
void makeLine(Maker& maker, int c, Side side, const equilibrium::Segment& ends,
              const std::array<Shown, 4>& shown) {
    const std::array<std::pair<const char*, double>, 4> values{
        {{"xA", ends[0].x}, {"yA", ends[0].y}, {"xB", ends[1].x}, {"yB", ends[1].y}}};
    Numbers made;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const QString name = QString::fromLatin1(values[i].first);
        made.push_back(maker.given(c, sided(name, side), symbolOf(name.left(1), name.mid(1), side),
                                   values[i].second, millimetres, shown[i]));
    }
    maker.computed(c, sided(QStringLiteral("phi"), side), symbolOf(QStringLiteral("φ"), {}, side),
                   lineAngleClause, made, places(2));
}

/// The search's line as told, its points in whole millimetres as the report prints them.
void makeToldLine(Maker& maker, const CaseSheet& one) {
    const Wyniki& r = maker.input().stan.wyniki;
    const int c = one.number;
    const std::array<Single, 4> ends{r.Przec_a(c), r.Przec_b(c), r.Przec_c(c), r.Przec_d(c)};
    std::array<Shown, 4> shown;
    for (std::size_t i = 0; i < ends.size(); ++i)
        shown[i] = {.told = fixed(Int(CSng(ends[i] * 10.0)), 0)};
    makeLine(maker, c, Side::Search,
             {{{10.0 * static_cast<double>(ends[0]), 10.0 * static_cast<double>(ends[1])},
               {10.0 * static_cast<double>(ends[2]), 10.0 * static_cast<double>(ends[3])}}},
             shown);
    maker.given(c, QStringLiteral("sigma_b_s"), QStringLiteral("σ_b"), one.told->sigmaConcrete,
                megapascals, {.told = fixedSingle(CSng(one.told->sigmaConcrete), 2)});
}

/// The plane through the told line that has the told stress at the pressed corner.
void makeToldPlane(Maker& maker, const CaseSheet& one) {
    const int c = one.number;
    const auto corner = [&](const char* id, const char* symbol, const char* size, bool low) {
        return maker.computed(c, QString::fromLatin1(id), QString::fromLatin1(symbol),
                              low ? minusHalfClause : halfClause,
                              {maker.at(0, QString::fromLatin1(size))}, digits(6));
    };
    const Quantity* const xC = corner("xC", "x_C", "L", one.load.M1 < 0);
    const Quantity* const yC = corner("yC", "y_C", "B", one.load.M2 < 0);
    const auto ofLine = [&](const char* id) {
        return maker.at(c, sided(QString::fromLatin1(id), Side::Search));
    };
    const Numbers inputs{
        ofLine("sigma_b"), ofLine("xA"), ofLine("yA"), ofLine("xB"), ofLine("yB"), xC, yC};
    const Quantity* const sx = maker.computed(c, QStringLiteral("sx_s"), QStringLiteral("s_x"),
                                              slopeAlongXClause, inputs, digits(6));
    const Quantity* const sy = maker.computed(c, QStringLiteral("sy_s"), QStringLiteral("s_y"),
                                              slopeAlongYClause, inputs, digits(6));
    maker.computed(c, QStringLiteral("s0_s"), QStringLiteral("s_0"), stressAtCentreClause,
                   {sx, sy, ofLine("xA"), ofLine("yA")}, digits(6));
}

/// The exact line with its ends in the order of the search's, so that they can be compared.
equilibrium::Segment inOrderOfTheTold(const Maker& maker, const CaseSheet& one) {
    equilibrium::Segment ends = *one.exact->neutralLine;
    if (!one.hasLine())
        return ends;
    const auto told = [&](const char* id) {
        return maker.at(one.number, sided(QString::fromLatin1(id), Side::Search))->value;
    };
    const auto away = [&](const equilibrium::Point& end) {
        return std::hypot(end.x - told("xA"), end.y - told("yA"));
    };
    if (away(ends[1]) < away(ends[0]))
        std::swap(ends[0], ends[1]);
    return ends;
}

void makeExactPlane(Maker& maker, const CaseSheet& one) {
    const int c = one.number;
    const equilibrium::Plane& plane = one.exact->plane;
    constexpr double nothing = 1e-12;
    const double size = maker.at(0, QStringLiteral("L"))->value;
    const auto coefficient = [&](const char* id, const char* symbol, double value,
                                 const QString& unit) {
        // What a computation leaves of nothing is printed as nothing.
        const bool none = std::fabs(value) * size < nothing * std::fabs(one.exact->sigmaConcrete);
        return maker.given(c, QString::fromLatin1(id), QString::fromUtf8(symbol), value, unit,
                           none ? Shown{.told = QStringLiteral("0")} : digits(6));
    };
    const Quantity* const s0 = coefficient("s0_e", "s*_0", plane.s0, megapascals);
    const Quantity* const sx = coefficient("sx_e", "s*_x", plane.sx, MPaPerMm);
    const Quantity* const sy = coefficient("sy_e", "s*_y", plane.sy, MPaPerMm);
    maker.computed(c, QStringLiteral("sigma_b_e"), QStringLiteral("σ*_b"), largestPressureClause,
                   {s0, sx, sy, maker.at(0, QStringLiteral("L")), maker.at(0, QStringLiteral("B"))},
                   places(2));
    if (one.exact->neutralLine)
        makeLine(maker, c, Side::Exact, inOrderOfTheTold(maker, one),
                 {places(1), places(1), places(1), places(1)});
}

Row planeRow(const Maker& maker, const CaseSheet& one, Side side) {
    Row row{cell(side == Side::Search ? maker.text()(QStringLiteral("side.search"))
                                      : maker.text()(QStringLiteral("side.exact")))};
    for (const char* id : {"xA", "yA", "xB", "yB", "phi", "s0", "sx", "sy", "sigma_b"}) {
        const Quantity* const number = maker.find(one.number, sided(QString::fromLatin1(id), side));
        row.push_back(number != nullptr ? cell(number) : cell(QStringLiteral("–")));
    }
    return row;
}

} // namespace

Table planeTable(Maker& maker, const CaseSheet& one) {
    if (one.hasLine()) {
        makeToldLine(maker, one);
        makeToldPlane(maker, one);
    }
    if (one.exact != nullptr)
        makeExactPlane(maker, one);
    Table table;
    table.caption = maker.text()(QStringLiteral("plane.caption"));
    table.columns.assign(10, Column{});
    table.columns.front() = {Column::Align::Left, 1.5};
    for (const std::size_t wide : {7U, 8U})
        table.columns[wide].width = 1.35;
    const auto head = [](const char* text) { return headCell(QString::fromUtf8(text)); };
    table.head = {
        {head(""), head("<i>x<sub>A</sub></i><br/>[mm]"), head("<i>y<sub>A</sub></i><br/>[mm]"),
         head("<i>x<sub>B</sub></i><br/>[mm]"), head("<i>y<sub>B</sub></i><br/>[mm]"),
         head("<i>φ</i><br/>[°]"), head("<i>s</i><sub>0</sub><br/>[MPa]"),
         head("<i>s<sub>x</sub></i><br/>[MPa/mm]"), head("<i>s<sub>y</sub></i><br/>[MPa/mm]"),
         head("<i>σ<sub>b</sub></i><br/>[MPa]")}};
    if (one.told != nullptr)
        table.rows.push_back(planeRow(maker, one, Side::Search));
    if (one.exact != nullptr)
        table.rows.push_back(planeRow(maker, one, Side::Exact));
    return table;
}

} // namespace ferna::sheet
