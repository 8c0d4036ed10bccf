#include "sheet/descriptions.h"
#include "sheet/numbers.h"
#include "sheet/sections.h"

namespace ferna::sheet {

namespace {

/// Stress, force and share of the strength of one anchor on one side.
struct Stressed {
    const Quantity* stress;
    const Quantity* force;
    const Quantity* share = nullptr;
};

const Quantity* stressOf(Maker& maker, const CaseSheet& one, int anchor, Side side) {
    const int c = one.number;
    const QString i = QString::number(anchor);
    const QString id = sided(QStringLiteral("sigma_") + i, side);
    const QString symbol = symbolOf(QStringLiteral("σ"), i, side);
    if (side == Side::Search) {
        const double told = one.told->sigmaAnchor.at(static_cast<std::size_t>(anchor - 1));
        return maker.given(c, id, symbol, told, megapascals, {.told = fixedSingle(CSng(told), 2)});
    }
    return maker.computed(c, id, symbol, anchorOfPlaneClause,
                          {maker.at(0, QStringLiteral("n")), maker.at(c, QStringLiteral("s0_e")),
                           maker.at(c, QStringLiteral("sx_e")), maker.at(c, QStringLiteral("sy_e")),
                           maker.at(0, QStringLiteral("x_") + i),
                           maker.at(0, QStringLiteral("y_") + i)},
                          places(2));
}

Stressed stressed(Maker& maker, const CaseSheet& one, int anchor, Side side) {
    const int c = one.number;
    const QString i = QString::number(anchor);
    Stressed made{stressOf(maker, one, anchor, side), nullptr};
    const Quantity* const area = maker.at(0, QStringLiteral("A_") + i);
    Shown force = places(1);
    if (side == Side::Search) // the force that the report prints, of the stress as a Single
        force.told = fixedSingle(anchorForceOfStress(CSng(made.stress->value), area->value), 1);
    made.force = maker.computed(c, sided(QStringLiteral("F_") + i, side),
                                symbolOf(QStringLiteral("F"), i, side), anchorForceOfStressClause,
                                {made.stress, area}, force);
    if (const Quantity* const fd = maker.find(0, QStringLiteral("fd")))
        made.share = maker.computed(c, sided(QStringLiteral("w_") + i, side),
                                    symbolOf(QStringLiteral("w"), i, side), shareClause,
                                    {made.stress, fd}, places(3));
    return made;
}

Cell maybe(const Quantity* number) {
    return number != nullptr ? cell(number) : cell(QStringLiteral("–"));
}

std::vector<Row> headOf(const Maker& maker, const std::vector<Side>& sides) {
    Row over{headCell({})};
    Row symbols{headCell(QStringLiteral("<i>i</i>"))};
    for (const Side side : sides) {
        const bool exact = side == Side::Exact;
        const QString star = exact ? QStringLiteral("*") : QString();
        over.push_back(headCell(
            maker.text()(exact ? QStringLiteral("side.exact") : QStringLiteral("side.search")), 3));
        symbols.push_back(headCell(QStringLiteral("<i>σ%1<sub>i</sub></i> [MPa]").arg(star)));
        symbols.push_back(headCell(QStringLiteral("<i>F%1<sub>i</sub></i> [kN]").arg(star)));
        symbols.push_back(
            headCell(QStringLiteral("|<i>σ%1<sub>i</sub></i>|/<i>f<sub>d</sub></i>").arg(star)));
    }
    return {over, symbols};
}

} // namespace

Table anchorTable(Maker& maker, const CaseSheet& one) {
    std::vector<Side> sides;
    for (const Side side : {Side::Search, Side::Exact})
        if (hasPlane(one, side))
            sides.push_back(side);
    Table table;
    table.caption = maker.text()(QStringLiteral("anchors.caption"));
    table.columns.assign(1 + 3 * sides.size(), Column{});
    table.columns.front().width = 0.45;
    table.head = headOf(maker, sides);
    for (int i = 1; i <= static_cast<int>(maker.anchors.size()); ++i) {
        Row row{cell(QString::number(i))};
        for (const Side side : sides) {
            const Stressed made = stressed(maker, one, i, side);
            row.insert(row.end(), {cell(made.stress), cell(made.force), maybe(made.share)});
        }
        table.rows.push_back(std::move(row));
    }
    return table;
}

Table inTwoColumns(Table table) {
    const std::size_t columns = table.columns.size();
    const std::size_t half = (table.rows.size() + 1) / 2;
    const auto beside = [](Row& left, const Row& right) {
        left.push_back(cell(Rich()));
        left.insert(left.end(), right.begin(), right.end());
    };
    table.columns.push_back({Column::Align::Left, 0.2});
    for (std::size_t i = 0; i < columns; ++i)
        table.columns.push_back(table.columns[i]);
    for (Row& row : table.head)
        beside(row, Row(row));
    std::vector<Row> rows(table.rows.begin(),
                          table.rows.begin() + static_cast<std::ptrdiff_t>(half));
    for (std::size_t i = 0; i < half; ++i)
        beside(rows[i],
               half + i < table.rows.size() ? table.rows[half + i] : Row(columns, cell(Rich())));
    table.rows = std::move(rows);
    return table;
}

} // namespace ferna::sheet
