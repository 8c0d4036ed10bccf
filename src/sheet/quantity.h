#pragma once

#include "sheet/expression.h"

#include <QString>

#include <optional>

namespace ferna::sheet {

/// Units that stand beside many numbers.
inline const QString millimetres = QStringLiteral("mm");
inline const QString megapascals = QStringLiteral("MPa");

/// A number of the sheet: what it is called, what it is and, where it is computed, from what.
struct Quantity {
    int caseNumber = 0; ///< 1..6; 0 for what belongs to all cases
    QString id;         ///< identifier in formulas, unique within its case: "sigma_b"
    QString symbol;     ///< as a person reads it, the index behind "_": "σ_b"
    double value = 0;
    QString unit;                      ///< "MPa", empty for a plain number
    QString text;                      ///< the value as printed, without its unit
    std::optional<Expression> formula; ///< empty for what is given
    QString source;                    ///< "PN-B-03215:1998, B, wz. B.6"; empty where none is told
};

} // namespace ferna::sheet
