#pragma once

#include "combinations/row_source.h"
#include "combinations/table_row.h"

namespace ferna::combinations {

/// Reads a table of combinations row by row. The first rows show how it is to be read; the columns
/// may then be set otherwise.
class TableReader {
public:
    /// The source outlives the reader.
    explicit TableReader(RowSource& source);

    const Layout& layout() const { return layout_; }

    /// Data rows that the next ones begin with, up to `most`, without taking them.
    QList<QStringList> firstRows(qsizetype most) const;

    /// The cells of the next data row; empty behind the last one. Titles, column names and units
    /// are none.
    std::optional<QStringList> nextCells();

    /// The combination of the next data row, by the columns of the layout.
    std::optional<ReadRow> next();

private:
    RowSource& source_;
    QList<tables::Row> first_; ///< rows that showed the layout and are still to be given
    qsizetype given_ = 0;
    Layout layout_;
};

} // namespace ferna::combinations
