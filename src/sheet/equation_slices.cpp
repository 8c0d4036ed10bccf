#include "sheet/math_box.h"
#include "sheet/page_slices.h"

#include <QPainter>

#include <algorithm>

namespace ferna::sheet {

namespace {

constexpr double mathSize = points(9.4);
const TextStyle resultStyle{.size = points(8.4), .bold = true};
const TextStyle unitStyle{.size = points(8.4)};
const TextStyle remarkStyle{.size = points(7.2)};
constexpr double columnGap = 2.2 * perMm;
constexpr double equationGap = 0.75 * perMm;

/// A result with its unit.
struct Result {
    AlignedNumber number;
    TextBlock unit;
    bool there = false;
};

/// A row on its way onto the page.
struct SetRow {
    MathBox way; ///< symbol = formula = numbers, in one line or the first of two
    MathBox secondLine;
    Result result;
    Result exact;
    Rich remark;
};

/// How far a column of results reaches before and behind its decimal sign.
struct ResultColumn {
    double before = 0;
    double behind = 0;
    double unit = 0;

    void take(const Result& result) {
        if (!result.there)
            return;
        before = std::max(before, result.number.before());
        behind = std::max(behind, result.number.behind());
        unit = std::max(unit, result.unit.width());
    }
    double width() const { return before + behind + unit + (unit > 0 ? 0.9 * perMm : 0); }
};

Result setResult(const Quantity* number) {
    if (number == nullptr)
        return {};
    return {AlignedNumber(number->text, resultStyle),
            number->unit.isEmpty() ? TextBlock() : TextBlock(rich(number->unit), unitStyle), true};
}

MathBox equals() {
    return wordBox(QStringLiteral(" = "), mathSize);
}

/// The number of a standard is not divided at its hyphens.
Rich unbroken(Rich source) {
    constexpr char16_t wordJoiner = 0x2060;
    return source.replace(u'-', QStringLiteral("-") + QChar(wordJoiner));
}

Rich remarkOf(const Equation& equation, const Quantity& told) {
    if (told.source.isEmpty())
        return equation.remark;
    const Rich source = QStringLiteral("[%1]").arg(unbroken(rich(told.source)));
    return equation.remark.isEmpty() ? source : equation.remark + u' ' + source;
}

/// The way to the number, on two lines where one is too short.
SetRow setRow(const Equation& equation, const Quantity& told, double most) {
    SetRow made;
    made.result = setResult(equation.result);
    made.exact = setResult(equation.exact);
    made.remark = remarkOf(equation, told);
    made.way = symbolBox(told.symbol, mathSize);
    if (!told.formula || !isWorthPrinting(*told.formula))
        return made;
    const MathBox symbols =
        row({made.way, equals(), formulaBox(*told.formula, Show::Symbols, mathSize)});
    const MathBox values = row({equals(), formulaBox(*told.formula, Show::Values, mathSize)});
    if (symbols.width + values.width <= most) {
        made.way = row({symbols, values});
        return made;
    }
    made.way = fitted(symbols, most);
    constexpr double indent = 5 * perMm;
    made.secondLine = fitted(row({MathBox{indent, 0, 0, [](QPainter&, QPointF) {}}, values}), most);
    return made;
}

/// The columns of the rows of a block.
class Layout {
public:
    Layout(const std::vector<SetRow>& rows, double width, bool twoResults)
        : twoResults_(twoResults) {
        for (const SetRow& row : rows) {
            way_ = std::max({way_, row.way.width, row.secondLine.width});
            first_.take(row.result);
            second_.take(row.exact);
        }
        const double results =
            first_.width() + (twoResults ? columnGap + second_.width() : 0) + 2 * columnGap;
        remark_ = width - way_ - results;
        constexpr double narrow = 24 * perMm;
        below_ = remark_ < narrow;
        if (below_)
            remark_ = width - 5 * perMm;
    }

    Slice slice(const SetRow& row) const {
        const double secondLine =
            row.secondLine.height() > 0 ? row.secondLine.height() + 0.6 * perMm : 0;
        const TextBlock remark =
            row.remark.isEmpty() ? TextBlock() : TextBlock(row.remark, remarkStyle, remark_);
        const double letters = std::max(row.way.height(), 3.3 * perMm);
        const double base = std::max(row.way.ascent, 2.5 * perMm);
        const double line = std::max(letters, base + row.way.descent) + secondLine;
        Slice made;
        made.before = equationGap;
        made.height = below_ ? line + remark.height() : std::max(line, remark.height());
        made.draw = [*this, row, remark, base, line](QPainter& painter, QPointF at) {
            row.way.draw(painter, at + QPointF(0, base));
            double down = base;
            if (row.secondLine.draw) {
                down += row.way.descent + 0.6 * perMm + row.secondLine.ascent;
                row.secondLine.draw(painter, at + QPointF(0, down));
            }
            double x = at.x() + way_ + columnGap;
            drawResult(painter, row.result, first_, x, at.y() + down);
            x += first_.width() + columnGap;
            if (twoResults_) {
                drawResult(painter, row.exact, second_, x, at.y() + down);
                x += second_.width() + columnGap;
            }
            if (below_) {
                remark.draw(painter, at + QPointF(5 * perMm, line));
                return;
            }
            // On the base line, or around it where it has several lines.
            const double oneLine = 1.2 * remarkStyle.size;
            const double up = remark.ascent() + std::max(0.0, remark.height() - oneLine) / 2;
            const double lowest = std::max(0.0, line - remark.height());
            remark.draw(painter, {x, at.y() + std::clamp(down - up, 0.0, lowest)});
        };
        return made;
    }

    /// The names of the two columns of results.
    Slice head(const ColumnNames& names) const {
        const TextStyle style{.size = points(7.2), .bold = true};
        const TextBlock search(names.search, style);
        const TextBlock exact(names.exact, style);
        Slice made;
        made.height = search.height();
        made.before = equationGap;
        made.withNext = true;
        made.draw = [*this, search, exact](QPainter& painter, QPointF at) {
            const double x = way_ + columnGap;
            search.draw(painter,
                        at + QPointF(x + std::min(0.0, first_.width() - search.width()), 0));
            exact.draw(painter, at + QPointF(x + first_.width() + columnGap, 0));
        };
        return made;
    }

private:
    void drawResult(QPainter& painter, const Result& result, const ResultColumn& column, double x,
                    double base) const {
        if (!result.there)
            return;
        const double top = base - TextBlock(QStringLiteral("0"), resultStyle).ascent();
        result.number.draw(painter, {x + column.before, top});
        result.unit.draw(painter, {x + column.before + column.behind + 0.9 * perMm, top});
    }

    double way_ = 0;
    ResultColumn first_;
    ResultColumn second_;
    double remark_ = 0;
    bool below_ = false;
    bool twoResults_;
};

} // namespace

Slices equationSlices(const Equations& equations, double width, const ColumnNames& names) {
    constexpr double waysShare = 0.62;
    std::vector<SetRow> rows;
    for (const Equation& equation : equations.rows)
        if (const Quantity* const told =
                equation.result != nullptr ? equation.result : equation.exact)
            rows.push_back(setRow(equation, *told, width * waysShare));
    const Layout layout(rows, width, equations.twoResults);
    Slices slices;
    if (equations.twoResults)
        slices.push_back(layout.head(names));
    for (const SetRow& row : rows)
        slices.push_back(layout.slice(row));
    constexpr double blank = 1.5 * perMm;
    constexpr std::size_t few = 5; // rows that stay together
    if (!slices.empty())
        slices.front().before = blank;
    for (std::size_t i = 0; i + 1 < slices.size(); ++i)
        slices[i].withNext =
            slices[i].withNext || i == 0 || i + 2 == slices.size() || slices.size() <= few;
    return slices;
}

} // namespace ferna::sheet
