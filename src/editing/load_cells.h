#pragma once

#include "design/load_row.h"
#include "design/stan.h"
#include "runtime/typed_value.h"

#include <QString>
#include <QStringView>

#include <array>
#include <vector>

namespace ferna::editing {

/// The columns of the load table from the left.
inline constexpr std::array<Value, 5> loadColumns{Value::N, Value::M1, Value::M2, Value::Vx,
                                                  Value::Vy};

/// A cell of the load table, rows and columns from 0.
struct LoadCell {
    int row = 0;
    int column = 0;

    bool operator==(const LoadCell&) const = default;
};

/// A block of cells of the load table: both corners belong to it.
struct LoadBlock {
    LoadCell first;
    LoadCell last;

    bool operator==(const LoadBlock&) const = default;
    bool holds(LoadCell cell) const;
    bool isOneCell() const;
};

/// What a pasted table does to the load table.
struct LoadPaste {
    struct Entry {
        LoadCell cell;
        QString text; ///< as the field takes it
    };
    QString refusal;            ///< where and why nothing can be taken; empty where it can
    std::vector<Entry> entries; ///< none with a refusal
    int rows = 0;               ///< how many rows the table has at least behind it
    QString remark;             ///< what was left out; empty where nothing was
};

/// A table as it goes into the load table: rows from the cell `at` down. Its columns follow from
/// there to the right, or, with a row of headings at its head, go where these say; columns that
/// they call otherwise are left out, and so are rows beyond the sixth of the load table. A number
/// in another unit is brought to kN or kNm. One cell that is no number refuses the whole.
LoadPaste pasteLoads(QStringView text, LoadCell at);

/// A block of the load table as a spreadsheet takes it: a tab between cells, a line feed behind
/// each row, numbers with the decimal sign of the program; what is no number stays as it stands.
/// The headings stand above where the block is the whole table of `rows` rows.
QString copiedLoads(const std::array<LoadRow<QString>, MaxCases>& texts, const LoadBlock& block,
                    int rows);

} // namespace ferna::editing
