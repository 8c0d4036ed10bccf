#include "combinations/digest.h"

namespace ferna::combinations {

Digest digestOf(const AnsweredTable& table, const QString& source,
                const std::vector<RowNumber>& taken) {
    Digest digest{source, static_cast<RowNumber>(table.size()), table.refused(), {}, {}};
    for (const Check check : allChecks) {
        std::vector<RowNumber> rows = table.governing(check);
        if (rows.empty())
            continue;
        const QString name = table.combination(rows.front())->name;
        digest.governing.push_back({check, table.choice().envelope(check), std::move(rows), name});
    }
    for (const RowNumber row : taken)
        digest.taken.push_back({row, *table.combination(row), table.answer(row)});
    return digest;
}

} // namespace ferna::combinations
