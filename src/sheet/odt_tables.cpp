#include "sheet/odt_tables.h"

#include "runtime/format.h"
#include "sheet/formula_style.h"
#include "sheet/page_slices.h"

#include <algorithm>

namespace ferna::sheet::odt {

namespace {

constexpr double padding = 0.7; // mm, of a cell
constexpr double slack = 1;     // mm: a tabulator at the very edge would start a new line

TextStyle lettersOf(bool narrow, bool bold) {
    return {.size = points(narrow ? 7.0 : 8.5), .bold = bold};
}

double inMm(double pageUnits) {
    return pageUnits / perMm;
}

/// Leaves room at the right for what stands behind the decimal signs.
void placeDecimalSigns(TablePlan& plan, const std::vector<double>& behind) {
    for (std::size_t i = 0; i < plan.columns.size(); ++i)
        plan.columns[i].decimalSign =
            std::max(0.0, plan.columns[i].width - 2 * padding - slack - inMm(behind[i]));
}

void paragraphStyle(Xml& xml, const TablePlan& plan, std::size_t column) {
    xml.element(
        "style:style",
        {{"style:name", numbersName(plan, column)},
         {"style:family", QStringLiteral("paragraph")},
         {"style:parent-style-name",
          plan.narrow ? QStringLiteral("Narrow_20_Cell") : QStringLiteral("Cell")}},
        [&] {
            xml.element("style:paragraph-properties", {}, [&] {
                xml.element("style:tab-stops", {}, [&] {
                    xml.element("style:tab-stop",
                                {{"style:position", mm(plan.columns[column].decimalSign)},
                                 {"style:type", QStringLiteral("char")},
                                 {"style:char", QString(decimalSign())}});
                });
            });
        });
}

} // namespace

TablePlan planOf(const Table& table, const QString& name) {
    constexpr double narrowColumn = 13; // mm
    const double whole = textWidth * table.share;
    TablePlan plan{name, {}, whole < narrowColumn * static_cast<double>(table.columns.size())};
    double shares = 0;
    for (const Column& column : table.columns)
        shares += column.width;
    for (const Column& column : table.columns)
        plan.columns.push_back({whole * column.width / shares});
    std::vector<double> behind(plan.columns.size(), 0);
    for (const Row& row : table.rows) {
        std::size_t column = 0;
        for (const Cell& cell : row) {
            if (cell.number != nullptr && cell.span == 1)
                behind.at(column) = std::max(
                    behind[column],
                    AlignedNumber(cell.number->text, lettersOf(plan.narrow, cell.strong)).behind());
            column += static_cast<std::size_t>(cell.span);
        }
    }
    placeDecimalSigns(plan, behind);
    return plan;
}

TablePlan planOf(const Equations& equations, const QString& name) {
    constexpr double result = 28; // mm
    constexpr double symbol = 18;
    constexpr double remark = 48;
    const std::size_t results = equations.twoResults ? 2 : 1;
    const double free = textWidth - result * static_cast<double>(results);
    const bool given = std::all_of(
        equations.rows.begin(), equations.rows.end(), [](const Equation& row) {
            const Quantity* const told = row.result != nullptr ? row.result : row.exact;
            return told == nullptr || !told->formula || !isWorthPrinting(*told->formula);
        });
    const double way = given ? symbol : free - remark;
    TablePlan plan{name, {}, false};
    plan.columns.push_back({way});
    plan.columns.insert(plan.columns.end(), results, {result});
    plan.columns.push_back({free - way});
    std::vector<double> behind(plan.columns.size(), 0);
    const auto measure = [&](const Quantity* number, std::size_t column) {
        if (number == nullptr)
            return;
        const TextStyle letters = lettersOf(false, true);
        const double unit =
            TextBlock(rich(number->unit), lettersOf(false, false)).width() + 0.8 * perMm;
        behind[column] =
            std::max(behind[column], AlignedNumber(number->text, letters).behind() + unit);
    };
    for (const Equation& row : equations.rows) {
        measure(row.result, 1);
        measure(row.exact, results);
    }
    placeDecimalSigns(plan, behind);
    return plan;
}

void writeStyles(Xml& xml, const TablePlan& plan) {
    double width = 0;
    for (const ColumnPlan& column : plan.columns)
        width += column.width;
    xml.element("style:style",
                {{"style:name", plan.name}, {"style:family", QStringLiteral("table")}}, [&] {
                    xml.element("style:table-properties",
                                {{"style:width", mm(width)},
                                 {"table:align", QStringLiteral("left")},
                                 {"fo:margin-bottom", mm(1.5)}});
                });
    for (std::size_t i = 0; i < plan.columns.size(); ++i) {
        xml.element("style:style",
                    {{"style:name", columnName(plan, i)},
                     {"style:family", QStringLiteral("table-column")}},
                    [&] {
                        xml.element("style:table-column-properties",
                                    {{"style:column-width", mm(plan.columns[i].width)}});
                    });
        paragraphStyle(xml, plan, i);
    }
}

QString columnName(const TablePlan& plan, std::size_t column) {
    return QStringLiteral("%1.%2").arg(plan.name).arg(column + 1);
}

QString numbersName(const TablePlan& plan, std::size_t column) {
    return columnName(plan, column) + QStringLiteral(".n");
}

} // namespace ferna::sheet::odt
