#include "sheet/page_slices.h"

#include <QPainter>

#include <algorithm>

namespace ferna::sheet {

namespace {

constexpr double padding = 0.8 * perMm;
constexpr double tableRowGap = 0.32 * perMm;

/// A table on its way onto the page.
class TableSetter {
public:
    TableSetter(const Table& table, double width) : table_(table) {
        double shares = 0;
        for (const Column& column : table.columns)
            shares += column.width;
        double x = 0;
        for (const Column& column : table.columns) {
            edges_.push_back(x);
            x += width * table.share * column.width / shares;
        }
        edges_.push_back(x);
        constexpr double narrow = 13 * perMm;
        const bool tight = x / static_cast<double>(table.columns.size()) < narrow;
        size_ = tight ? points(6.6) : points(7.6);
        behind_.assign(table.columns.size(), 0);
        for (const Row& row : table.rows)
            measure(row);
    }

    Slices all() {
        Slices slices;
        if (!table_.caption.isEmpty()) {
            const TextBlock caption(table_.caption, {.size = points(7.8), .bold = true},
                                    edges_.back());
            Slice made;
            made.height = caption.height() + 0.4 * perMm;
            made.before = 1.8 * perMm;
            made.withNext = true;
            made.draw = [caption](QPainter& painter, QPointF at) { caption.draw(painter, at); };
            slices.push_back(std::move(made));
        }
        std::shared_ptr<const Slice> head;
        if (!table_.head.empty()) {
            Slices rows;
            for (const Row& row : table_.head)
                rows.push_back(slice(row, true));
            Slice made = ruled(stacked(std::move(rows)), 0.25 * perMm, QColor(Qt::black));
            made.withNext = true;
            slices.push_back(made);
            head = std::make_shared<const Slice>(std::move(made));
        }
        for (std::size_t i = 0; i < table_.rows.size(); ++i) {
            const bool last = i + 1 == table_.rows.size();
            Slice made = ruled(slice(table_.rows[i], false), (last ? 0.2 : 0.08) * perMm,
                               last ? QColor(Qt::black) : QColor(0xBB, 0xBB, 0xBB));
            made.head = head;
            // No row stands alone in front of a break or behind one.
            made.withNext = i == 0 || i + 2 == table_.rows.size();
            if (last)
                made.withNext = false;
            slices.push_back(std::move(made));
        }
        return slices;
    }

private:
    TextStyle style(const Cell& cell, bool head) const {
        return {.size = size_, .bold = cell.strong || head};
    }

    /// How far the numbers of each column reach behind their decimal sign.
    void measure(const Row& row) {
        std::size_t column = 0;
        for (const Cell& cell : row) {
            if (cell.number != nullptr && cell.span == 1)
                behind_.at(column) = std::max(
                    behind_[column], AlignedNumber(cell.number->text, style(cell, false)).behind());
            column += static_cast<std::size_t>(cell.span);
        }
    }

    struct Placed {
        std::function<void(QPainter& painter, QPointF at)> draw;
        double height = 0;
    };

    Placed place(const Cell& cell, std::size_t column, bool head) const {
        const double left = edges_[column] + padding;
        const double right = edges_.at(column + static_cast<std::size_t>(cell.span)) - padding;
        if (cell.number != nullptr) {
            const AlignedNumber number(cell.number->text, style(cell, head));
            const double sign = right - behind_[column];
            return {[number, sign](QPainter& painter, QPointF at) {
                        number.draw(painter, at + QPointF(sign, 0));
                    },
                    number.height()};
        }
        TextStyle letters = style(cell, head);
        const Column::Align align = cell.span > 1 && head ? Column::Align::Centre
                                    : cell.span > 1       ? Column::Align::Left
                                                          : table_.columns[column].align;
        letters.align = align == Column::Align::Left     ? Qt::AlignLeft
                        : align == Column::Align::Centre ? Qt::AlignHCenter
                                                         : Qt::AlignRight;
        const TextBlock text(cell.text, letters, right - left);
        return {[text, left](QPainter& painter, QPointF at) {
                    text.draw(painter, at + QPointF(left, 0));
                },
                text.height()};
    }

    Slice slice(const Row& row, bool head) const {
        std::vector<Placed> cells;
        std::size_t column = 0;
        double height = 0;
        for (const Cell& cell : row) {
            cells.push_back(place(cell, column, head));
            height = std::max(height, cells.back().height);
            column += static_cast<std::size_t>(cell.span);
        }
        Slice made;
        made.height = height + 2 * tableRowGap;
        made.draw = [cells = std::move(cells), height, head](QPainter& painter, QPointF at) {
            for (const Placed& cell : cells)
                cell.draw(painter,
                          at + QPointF(0, tableRowGap + (head ? height - cell.height : 0)));
        };
        return made;
    }

    /// With a line below.
    Slice ruled(Slice slice, double pen, const QColor& colour) const {
        slice.draw = [draw = std::move(slice.draw), pen, colour, width = edges_.back(),
                      height = slice.height](QPainter& painter, QPointF at) {
            draw(painter, at);
            painter.setPen(QPen(colour, pen, Qt::SolidLine, Qt::FlatCap));
            painter.drawLine(at + QPointF(0, height), at + QPointF(width, height));
        };
        return slice;
    }

    const Table& table_;
    std::vector<double> edges_; ///< of the columns, one more than they are
    std::vector<double> behind_;
    double size_ = points(7.6);
};

} // namespace

Slices tableSlices(const Table& table, double width) {
    return TableSetter(table, width).all();
}

} // namespace ferna::sheet
