#pragma once

#include "design/load_row.h"
#include "runtime/typed_value.h"
#include "tables/cell_number.h"

#include <QStringList>

#include <array>

namespace ferna::combinations {

/// The loads of a combination, in the order in which they stand without column names.
inline constexpr std::array<Value, 5> loads{Value::N, Value::M1, Value::M2, Value::Vx, Value::Vy};

/// A load as the program writes it: "M1".
QString symbolOf(Value load);

/// Where a load stands in a row, and how it becomes kN or kNm.
struct LoadColumn {
    int column = -1;      ///< from 0; -1: in none, the load is 0
    double factor = 1;    ///< to kN or kNm, negative where the sign is to be turned
    QString heading = {}; ///< its name in the table, without the unit; empty without one

    bool operator==(const LoadColumn&) const = default;
};

/// What the columns of a table hold.
struct Columns {
    int name = -1; ///< column of the names, from 0; -1: the table has none
    std::array<LoadColumn, loads.size()> byLoad; ///< in the order of `loads`
    tables::DecimalSign sign = tables::DecimalSign::Any;

    bool operator==(const Columns&) const = default;
};

/// How a table is to be read, as its first rows show.
struct Layout {
    int skipped = 0;      ///< rows before the first data row: titles, column names, units
    int width = 0;        ///< columns
    QStringList headings; ///< the column names as they stand; empty without
    Columns columns;
    /// Why the columns cannot be taken without an engineer's choice; empty where they can.
    QString doubt;
    /// What is taken without being there: "kolumny M2, Vx: brak, przyjęto 0".
    QString assumed;
};

/// The layout that the first rows of a table show, blank ones left out. Column names stand in any
/// order, in Polish or English, with or without units; a minus before one turns its loads round. A
/// row of units may follow, titles may go before. Without names the loads are N, M1, M2, Vx, Vy,
/// and of six columns the first holds names.
Layout layoutOf(const QList<tables::Row>& rows);

} // namespace ferna::combinations
