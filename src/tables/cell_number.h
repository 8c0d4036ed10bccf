#pragma once

#include "tables/cells.h"

#include <QString>
#include <QStringView>

#include <variant>

namespace ferna::tables {

/// The decimal sign that the numbers of a table show.
enum class DecimalSign {
    Any,   ///< they show none, or both: each number has its own
    Comma, ///< a point may then group thousands
    Point, ///< a comma may then group thousands
};

/// Why a cell is no number.
enum class CellTrouble {
    Empty,
    NoNumber,
    TooLarge,  ///< beyond a Double
    Ambiguous, ///< such as "10.125" in a table with decimal commas: a fraction or thousands
};

/// What a cell holds: its number, or why it is none.
using CellNumber = std::variant<double, CellTrouble>;

/// The decimal sign of a table's cells, by those that can be read in one way only: "0,5" and
/// "1 250,75" show a comma, "1,250.75" a point, "1,250" shows nothing.
DecimalSign decimalSignOf(const QList<Row>& rows);

/// The number of one cell. Blanks may group thousands, also the no-break and narrow ones, and so
/// may the sign that is not the decimal one, beside a decimal one ("1.250,75"); a minus may be the
/// typographic one. A group has three digits: "10 20" is no number.
CellNumber cellNumber(QStringView cell, DecimalSign sign = DecimalSign::Any);

/// The number as it can stand in a field of the program: without grouping and with a plain minus,
/// its decimal sign as in the cell. Only for a cell that holds a number.
QString fieldText(QStringView cell);

/// The trouble in words, to stand behind the name of the cell: "komórka jest pusta".
QString troubleText(CellTrouble trouble, const QString& cell);

} // namespace ferna::tables
