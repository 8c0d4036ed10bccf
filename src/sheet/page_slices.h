#pragma once

#include "sheet/page_text.h"

namespace ferna::sheet {

// Blocks of the sheet as slices: pieces that no page break divides. Lengths as in page_text.h.

struct Slice {
    double height = 0;
    double before = 0;     ///< blank above it, left out at the head of a page
    bool withNext = false; ///< not the last one on its page
    /// With its left upper corner there.
    std::function<void(QPainter& painter, QPointF at)> draw;
    /// Repeated above it where it is the first one on its page; null for none.
    std::shared_ptr<const Slice> head;
};
using Slices = std::vector<Slice>;

/// The slices of a block in a column of that width. The names of the two sides head the results of
/// equations.
struct ColumnNames {
    Rich search;
    Rich exact;
};
Slices slicesOf(const Block& block, double width, const ColumnNames& names);
Slices slicesOf(const Blocks& blocks, double width, const ColumnNames& names);

// Their parts

Slices equationSlices(const Equations& equations, double width, const ColumnNames& names);
Slices tableSlices(const Table& table, double width);

/// The height of slices below one another.
double heightOf(const Slices& slices);
/// One slice of several below one another.
Slice stacked(Slices slices);

/// Draws a number with its decimal sign at `at`, its base line there too.
class AlignedNumber {
public:
    AlignedNumber() = default;
    AlignedNumber(const QString& text, const TextStyle& style);

    double before() const { return left_.width(); }
    double behind() const { return right_.width(); }
    double height() const { return left_.height(); }
    /// With its upper edge there.
    void draw(QPainter& painter, QPointF decimalSign) const;

private:
    TextBlock left_;
    TextBlock right_;
};

} // namespace ferna::sheet
