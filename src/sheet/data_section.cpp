#include "design/material_tables.h"
#include "sheet/plate_picture.h"
#include "sheet/sections.h"

namespace ferna::sheet {

namespace {

double typed(const QString& field) {
    try {
        return CDbl(field);
    } catch (const RunTimeError&) {
        return 0;
    }
}

void makePlate(Maker& maker) {
    const InputFields& fields = maker.entered().fields;
    maker.given(0, QStringLiteral("L"), QStringLiteral("L"), typed(fields.Text3), millimetres);
    maker.given(0, QStringLiteral("B"), QStringLiteral("B"), typed(fields.Text4), millimetres);
}

/// A length along an edge of the plate: how far an anchor's axis is from the nearest one.
const Quantity* edgeDistance(Maker& maker, const QString& i, const Quantity* x, const Quantity* y) {
    static constexpr Clause clause{{},
                                   {u"c", u"mm"},
                                   u"min({L} / 2 - abs({x}), {B} / 2 - abs({y}))",
                                   {{{u"L", u"mm"}, {u"B", u"mm"}, {u"x", u"mm"}, {u"y", u"mm"}}}};
    return maker.computed(
        0, QStringLiteral("c_") + i, QStringLiteral("c_") + i, clause,
        {maker.at(0, QStringLiteral("L")), maker.at(0, QStringLiteral("B")), x, y}, digits(6));
}

Row anchorRow(Maker& maker, int anchor) {
    const Plyta_i_kotwy& plate = maker.entered().plate;
    const QString i = QString::number(anchor);
    const auto place = [](Single cm) {
        const double tenths = 10.0 * static_cast<double>(cm);
        const double whole = std::nearbyint(tenths);
        return static_cast<Single>(whole / 10.0) == cm ? whole : tenths;
    };
    const Quantity* const x = maker.given(0, QStringLiteral("x_") + i, QStringLiteral("x_") + i,
                                          place(plate.X_kotwy(anchor)), millimetres);
    const Quantity* const y = maker.given(0, QStringLiteral("y_") + i, QStringLiteral("y_") + i,
                                          place(plate.Y_kotwy(anchor)), millimetres);
    const Quantity* const d = maker.given(0, QStringLiteral("d_") + i, QStringLiteral("d_") + i,
                                          plate.Fi_kotwy(anchor), millimetres);
    Row row{cell(i), cell(x), cell(y), cell(d), cell(edgeDistance(maker, i, x, y))};
    if (const auto area = coreArea(plate.Fi_kotwy(anchor)))
        row.push_back(cell(maker.given(0, QStringLiteral("A_") + i, QStringLiteral("A_") + i, *area,
                                       QStringLiteral("cm²"), places(2))));
    else
        row.push_back(cell(QStringLiteral("–")));
    return row;
}

Table anchorsTable(Maker& maker) {
    Table table;
    table.caption = maker.text()(QStringLiteral("data.anchors"));
    table.columns.assign(6, Column{});
    table.columns.front().width = 0.6;
    table.head = {{headCell(QStringLiteral("i")),
                   headCell(QStringLiteral("<i>x<sub>i</sub></i> [mm]")),
                   headCell(QStringLiteral("<i>y<sub>i</sub></i> [mm]")),
                   headCell(QStringLiteral("<i>d<sub>i</sub></i> [mm]")),
                   headCell(QStringLiteral("<i>c<sub>i</sub></i> [mm]")),
                   headCell(QStringLiteral("<i>A<sub>i</sub></i> [cm²]"))}};
    for (int i = 1; i <= maker.entered().plate.Liczba_srub; ++i)
        table.rows.push_back(anchorRow(maker, i));
    return table;
}

Row loadRow(Maker& maker, const CaseSheet& one) {
    const int c = one.number;
    Row row{cell(QString::number(c))};
    const auto load = [&](const char* id, const QString& symbol, double value, const char* unit) {
        row.push_back(cell(maker.given(c, QString::fromLatin1(id), symbol, value,
                                       QString::fromLatin1(unit), places(2))));
    };
    load("N", QStringLiteral("N"), one.load.N, "kN");
    load("M1", QStringLiteral("M_1"), one.load.M1, "kNm");
    load("M2", QStringLiteral("M_2"), one.load.M2, "kNm");
    load("Vx", QStringLiteral("V_x"), one.shear.Vx, "kN");
    load("Vy", QStringLiteral("V_y"), one.shear.Vy, "kN");
    return row;
}

Table loadsTable(Maker& maker) {
    Table table;
    table.caption = maker.text()(QStringLiteral("data.loads"));
    table.columns.assign(6, Column{});
    table.columns.front().width = 0.7;
    table.head = {{headCell(maker.text()(QStringLiteral("case"))),
                   headCell(QStringLiteral("<i>N</i> [kN]")),
                   headCell(QStringLiteral("<i>M</i><sub>1</sub> [kNm]")),
                   headCell(QStringLiteral("<i>M</i><sub>2</sub> [kNm]")),
                   headCell(QStringLiteral("<i>V<sub>x</sub></i> [kN]")),
                   headCell(QStringLiteral("<i>V<sub>y</sub></i> [kN]"))}};
    for (const CaseSheet& one : maker.cases)
        if (one.readable)
            table.rows.push_back(loadRow(maker, one));
    return table;
}

} // namespace

void addData(Maker& maker) {
    const Texts& text = maker.text();
    maker.heading(1, text(QStringLiteral("data.heading")));
    makePlate(maker);
    auto beside = std::make_shared<Beside>();
    beside->leftShare = 0.52;
    beside->left.push_back(platePicture(maker));
    beside->right.push_back(Equations{
        {{maker.at(0, QStringLiteral("L")), nullptr, text(QStringLiteral("data.length"))},
         {maker.at(0, QStringLiteral("B")), nullptr, text(QStringLiteral("data.width"))}}});
    beside->right.push_back(anchorsTable(maker));
    maker.add(std::shared_ptr<const Beside>(beside));
    maker.add(loadsTable(maker));
    maker.say(QStringLiteral("data.signs"), {}, Tone::Small);
}

} // namespace ferna::sheet
