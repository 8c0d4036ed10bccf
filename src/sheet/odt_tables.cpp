#include "sheet/odt_tables.h"

#include "sheet/formula_style.h"
#include "sheet/page_slices.h"

#include <algorithm>
#include <cmath>

namespace ferna::sheet::odt {

namespace {

TextStyle lettersOf(bool narrow, bool bold) {
    return {.size = points(narrow ? 7.0 : 8.5), .bold = bold};
}

/// How far a number reaches behind its decimal sign, mm.
double behindOf(const TablePlan& plan, const Quantity& number, bool bold) {
    double reach = AlignedNumber(number.text, lettersOf(plan.narrow, bold)).behind();
    if (plan.withUnits && !number.unit.isEmpty())
        reach += TextBlock(unitBehind(number), lettersOf(plan.narrow, false)).width();
    return reach / perMm;
}

/// Calls `take` with every number that stands alone in a cell: its column, and whether it is bold.
template <typename Take>
void forNumbers(const Table& table, const Take& take) {
    for (const Row& row : table.rows) {
        std::size_t column = 0;
        for (const Cell& cell : row) {
            if (cell.number != nullptr && cell.span == 1)
                take(*cell.number, column, cell.strong);
            column += static_cast<std::size_t>(cell.span);
        }
    }
}
template <typename Take>
void forNumbers(const Equations& equations, const Take& take) {
    for (const Equation& row : equations.rows) {
        if (row.result != nullptr)
            take(*row.result, std::size_t{1}, true);
        if (row.exact != nullptr && equations.twoResults)
            take(*row.exact, std::size_t{2}, true);
    }
}

template <typename Numbers>
void measure(TablePlan& plan, const Numbers& numbers) {
    forNumbers(numbers, [&](const Quantity& number, std::size_t column, bool bold) {
        double& behind = plan.columns.at(column).behind;
        behind = std::max(behind, behindOf(plan, number, bold));
    });
}

template <typename Numbers>
std::set<NumberStyle> stylesOfNumbers(const TablePlan& plan, const Numbers& numbers) {
    std::set<NumberStyle> styles;
    forNumbers(numbers, [&](const Quantity& number, std::size_t column, bool bold) {
        styles.insert(styleOf(plan, column, number, bold));
    });
    return styles;
}

} // namespace

Rich unitBehind(const Quantity& number) {
    return number.unit.isEmpty() ? Rich() : QChar(0x202F) + rich(number.unit);
}

TablePlan planOf(const Table& table, const QString& name) {
    constexpr double narrowColumn = 13; // mm
    const double whole = textWidth * table.share;
    TablePlan plan{name, {}, whole < narrowColumn * static_cast<double>(table.columns.size())};
    double shares = 0;
    for (const Column& column : table.columns)
        shares += column.width;
    for (const Column& column : table.columns)
        plan.columns.push_back({whole * column.width / shares});
    measure(plan, table);
    return plan;
}

TablePlan planOf(const Equations& equations, const QString& name) {
    constexpr double result = 28; // mm
    constexpr double symbol = 18;
    constexpr double remark = 48;
    const std::size_t results = equations.twoResults ? 2 : 1;
    const double free = textWidth - result * static_cast<double>(results);
    const bool given =
        std::all_of(equations.rows.begin(), equations.rows.end(), [](const Equation& row) {
            const Quantity* const told = row.result != nullptr ? row.result : row.exact;
            return told == nullptr || !told->formula || !isWorthPrinting(*told->formula);
        });
    const double way = given ? symbol : free - remark;
    TablePlan plan{name, {}, false, true};
    plan.columns.push_back({way});
    plan.columns.insert(plan.columns.end(), results, {result});
    plan.columns.push_back({free - way});
    measure(plan, equations);
    return plan;
}

QString NumberStyle::name() const {
    return QStringLiteral("%1N%2").arg(narrow ? QStringLiteral("n") : QString()).arg(tenths);
}

NumberStyle styleOf(const TablePlan& plan, std::size_t column, const Quantity& number, bool bold) {
    constexpr double tenthsPerMm = 10;
    const double free = plan.columns.at(column).behind - behindOf(plan, number, bold);
    return {plan.narrow, static_cast<int>(std::lround(tenthsPerMm * free))};
}

std::set<NumberStyle> stylesOf(const TablePlan& plan, const Table& table) {
    return stylesOfNumbers(plan, table);
}

std::set<NumberStyle> stylesOf(const TablePlan& plan, const Equations& equations) {
    return stylesOfNumbers(plan, equations);
}

void writeStyle(Xml& xml, const NumberStyle& style) {
    constexpr double tenthsPerMm = 10;
    xml.element("style:style",
                {{"style:name", style.name()},
                 {"style:family", QStringLiteral("paragraph")},
                 {"style:parent-style-name",
                  style.narrow ? QStringLiteral("Narrow_20_Cell") : QStringLiteral("Cell")}},
                [&] {
                    xml.element("style:paragraph-properties",
                                {{"fo:text-align", QStringLiteral("end")},
                                 {"fo:margin-right", mm(style.tenths / tenthsPerMm)}});
                });
}

void writeStyles(Xml& xml, const TablePlan& plan) {
    double width = 0;
    for (const ColumnPlan& column : plan.columns)
        width += column.width;
    xml.element("style:style",
                {{"style:name", plan.name}, {"style:family", QStringLiteral("table")}}, [&] {
                    xml.element("style:table-properties", {{"style:width", mm(width)},
                                                           {"table:align", QStringLiteral("left")},
                                                           {"fo:margin-bottom", mm(1.5)}});
                });
    for (std::size_t i = 0; i < plan.columns.size(); ++i)
        xml.element(
            "style:style",
            {{"style:name", columnName(plan, i)}, {"style:family", QStringLiteral("table-column")}},
            [&] {
                xml.element("style:table-column-properties",
                            {{"style:column-width", mm(plan.columns[i].width)}});
            });
}

QString columnName(const TablePlan& plan, std::size_t column) {
    return QStringLiteral("%1.%2").arg(plan.name).arg(column + 1);
}

} // namespace ferna::sheet::odt
