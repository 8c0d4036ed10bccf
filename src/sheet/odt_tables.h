#pragma once

#include "sheet/odt_styles.h"

#include <compare>
#include <set>

namespace ferna::sheet::odt {

/// A number's unit as it stands behind it.
Rich unitBehind(const Quantity& number);

/// A column of a table of the document.
struct ColumnPlan {
    double width = 0; ///< mm
    /// How far its numbers reach behind their decimal signs at most, the units that follow them
    /// included, mm.
    double behind = 0;
};

/// A table or a block of equations on its way into the document.
struct TablePlan {
    QString name; ///< unique
    std::vector<ColumnPlan> columns;
    bool narrow = false;    ///< small letters
    bool withUnits = false; ///< units stand behind the numbers
};

TablePlan planOf(const Table& table, const QString& name);
/// Way, result, for two results the second one, remark.
TablePlan planOf(const Equations& equations, const QString& name);

/// The styles of a table and of its columns, "Name" and "Name.1".
void writeStyles(Xml& xml, const TablePlan& plan);
QString columnName(const TablePlan& plan, std::size_t column);

/// The paragraphs of numbers: at the right, and so far from the edge that the decimal signs of a
/// column stand below one another.
struct NumberStyle {
    bool narrow = false;
    int tenths = 0; ///< of a mm, from the edge
    auto operator<=>(const NumberStyle&) const = default;

    QString name() const;
};
NumberStyle styleOf(const TablePlan& plan, std::size_t column, const Quantity& number, bool bold);
/// Of all numbers of a table.
std::set<NumberStyle> stylesOf(const TablePlan& plan, const Table& table);
std::set<NumberStyle> stylesOf(const TablePlan& plan, const Equations& equations);
void writeStyle(Xml& xml, const NumberStyle& style);

} // namespace ferna::sheet::odt
