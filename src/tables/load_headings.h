#pragma once

#include "runtime/typed_value.h"

#include <QString>
#include <QStringList>
#include <QStringView>

#include <optional>
#include <variant>

namespace ferna::tables {

/// What a word at the head of a column says of it.
struct Heading {
    enum class Is {
        Unknown, ///< a word of another program's table
        Name,    ///< the load case's or combination's name or number
        Load,    ///< a load
    };
    Is is = Is::Unknown;
    Value load = Value::None; ///< N, M1, M2, Vx, Vy; None otherwise
    double factor = 1;        ///< from the unit of the column to kN or kNm
};

/// Why a row of headings cannot be taken.
struct HeadingTrouble {
    int column = 0; ///< from 1; 0 for the row as a whole
    QString why;
};

using Headings = std::variant<QList<Heading>, HeadingTrouble>;

/// True where a row heads a table: it has words, none of its cells is a number, and one of them
/// names a load.
bool isHeadingRow(const QStringList& cells);

/// What each column of a row of headings is, by its Polish or English word: the names of the
/// program ("N", "M1", "M2", "Vx", "Vy") and those of frame programs ("My", "Mz", "Ty", "Tz", with
/// Vz beside Vy also "Vy", "Vz"), whole words ("Siła osiowa"), in any letter case, with "Ed", "Sd"
/// or "d" behind them. A unit in brackets or behind the name (N, kN, MN and times mm, cm, m; kN and
/// kNm without one) gives the factor. Trouble: a load named twice, a unit that is none of these,
/// moments about x and y alone (of which axis the third is, they do not say).
Headings headingsOf(const QStringList& cells);

/// The heading of a load as the program writes it: "M1 [kNm]".
QString headingOf(Value load);

} // namespace ferna::tables
