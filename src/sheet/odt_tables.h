#pragma once

#include "sheet/odt_styles.h"

namespace ferna::sheet::odt {

/// A column of a table of the document.
struct ColumnPlan {
    double width = 0; ///< mm
    /// From the cell's left edge to the decimal signs of its numbers, mm.
    double decimalSign = 0;
};

/// A table or a block of equations on its way into the document.
struct TablePlan {
    QString name; ///< unique
    std::vector<ColumnPlan> columns;
    bool narrow = false; ///< small letters
};

TablePlan planOf(const Table& table, const QString& name);
/// Way, result, for two results the second one, remark.
TablePlan planOf(const Equations& equations, const QString& name);

/// The automatic styles of a table and its columns: "Name", "Name.A" of a column, "Name.A.n" of the
/// paragraphs with its numbers, whose decimal signs stand below one another.
void writeStyles(Xml& xml, const TablePlan& plan);
QString columnName(const TablePlan& plan, std::size_t column);
QString numbersName(const TablePlan& plan, std::size_t column);

} // namespace ferna::sheet::odt
