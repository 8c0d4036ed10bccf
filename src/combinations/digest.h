#pragma once

#include "combinations/answered_table.h"

namespace ferna::combinations {

/// A row of a table of combinations with its answer.
struct DigestRow {
    RowNumber row = 0;
    Combination combination;
    std::optional<Utilisation> used; ///< empty where nothing carries it
};

/// What a table of combinations has come to, to be written down beside the calculation of the rows
/// that were taken from it.
struct Digest {
    struct Governing {
        Check check = Check::Concrete;
        Double envelope = 0;         ///< the largest use; infinite where nothing carries a row
        std::vector<RowNumber> rows; ///< that use it so, ties included, in order
        QString name;                ///< of the first of them
    };
    QString source;                   ///< what the table was read from
    RowNumber rows = 0;               ///< in it
    RowNumber refused = 0;            ///< of these
    std::vector<Governing> governing; ///< of the checks that apply in any row, in their order
    std::vector<DigestRow> taken;     ///< rows of the load table, in order
};

/// The digest of a table that is answered to its end, with these rows taken.
Digest digestOf(const AnsweredTable& table, const QString& source,
                const std::vector<RowNumber>& taken);

} // namespace ferna::combinations
