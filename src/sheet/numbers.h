#pragma once

#include <QString>

namespace ferna::sheet {

// Numbers as the sheet prints them: the decimal sign of the report, thin blanks between thousands,
// a true minus.

/// So many decimals; half goes away from zero, as in the report.
QString fixed(double value, int decimals);
/// The same of a Single, by its own seven digits: the number that the report prints.
QString fixedSingle(float value, int decimals);
/// So many digits that count, without needless decimals.
QString significant(double value, int digits);
/// The shortest text that reads back, as for what was typed.
QString shortest(double value);
/// "61,2 %" of a share.
QString percentText(double share, int decimals = 1);

} // namespace ferna::sheet
