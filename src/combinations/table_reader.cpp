#include "combinations/table_reader.h"

namespace ferna::combinations {

TableReader::TableReader(RowSource& source) : source_(source) {
    constexpr int shown = 200;
    while (first_.size() < shown) {
        auto cells = source_.next();
        if (!cells)
            break;
        first_ += tables::Row{static_cast<int>(first_.size()) + 1, *std::move(cells)};
    }
    layout_ = layoutOf(first_);
    given_ = layout_.skipped;
}

QList<QStringList> TableReader::firstRows(qsizetype most) const {
    QList<QStringList> rows;
    for (qsizetype i = given_; i < first_.size() && rows.size() < most; ++i)
        rows += first_.at(i).cells;
    return rows;
}

std::optional<QStringList> TableReader::nextCells() {
    if (given_ < first_.size())
        return std::move(first_[given_++].cells);
    return source_.next();
}

std::optional<ReadRow> TableReader::next() {
    const std::optional<QStringList> cells = nextCells();
    if (!cells)
        return std::nullopt;
    return readRow(*cells, layout_.columns);
}

} // namespace ferna::combinations
