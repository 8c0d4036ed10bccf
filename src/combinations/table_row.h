#pragma once

#include "combinations/columns.h"
#include "combinations/combination.h"

#include <variant>

namespace ferna::combinations {

/// A row that gives no combination: the first of its cells that is at fault, and why.
struct Refusal {
    QString name; ///< of the combination, where it has one
    QString text; ///< "kolumna M1: \"12,3,4\" nie jest liczbą"
};

using ReadRow = std::variant<Combination, Refusal>;

/// The combination that a row holds.
ReadRow readRow(const QStringList& cells, const Columns& columns);

} // namespace ferna::combinations
