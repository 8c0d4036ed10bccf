#include "combinations/table_row.h"

#include <cmath>

namespace ferna::combinations {

namespace {

constexpr double mostLoad = 1e100; ///< kN, kNm: no load beyond it is computed

QString columnName(const LoadColumn& column, Value load) {
    const QString symbol = symbolOf(load);
    if (column.heading.isEmpty() || column.heading == symbol)
        return QStringLiteral("kolumna ") + symbol;
    return QStringLiteral("kolumna %1 (%2)").arg(symbol, column.heading);
}

QString reason(tables::CellTrouble trouble, const QString& cell) {
    return trouble == tables::CellTrouble::Empty ? QStringLiteral("brak wartości")
                                                 : tables::troubleText(trouble, cell);
}

} // namespace

ReadRow readRow(const QStringList& cells, const Columns& columns) {
    Combination combination;
    if (columns.name >= 0)
        combination.name = cells.value(columns.name);
    std::array<double, loads.size()> values{};
    for (std::size_t i = 0; i < loads.size(); ++i) {
        const LoadColumn& column = columns.byLoad.at(i);
        if (column.column < 0)
            continue;
        const QString cell = cells.value(column.column);
        const auto refused = [&](tables::CellTrouble trouble) {
            return Refusal{combination.name, columnName(column, loads.at(i)) + QStringLiteral(": ")
                                                 + reason(trouble, cell)};
        };
        const tables::CellNumber number = tables::cellNumber(cell, columns.sign);
        if (const auto* const trouble = std::get_if<tables::CellTrouble>(&number))
            return refused(*trouble);
        values.at(i) = std::get<double>(number) * column.factor;
        if (!(std::fabs(values.at(i)) <= mostLoad))
            return refused(tables::CellTrouble::TooLarge);
    }
    combination.load = {values[0], values[1], values[2]};
    combination.shear = {values[3], values[4]};
    return combination;
}

} // namespace ferna::combinations
