#include "live/figures.h"
#include "live/parts.h"

#include <algorithm>
#include <cmath>

namespace ferna::live {

namespace {

/// A dimension line runs along x, or along y with its texts turned.
struct Row {
    const Strokes& to;
    bool upwards;
    qreal across; ///< where the line lies

    QPointF place(qreal along) const {
        return upwards ? QPointF(across, along) : QPointF(along, across);
    }

    /// An oblique stroke over the end of a dimension, and a short line across.
    void end(qreal along) const {
        const qreal h = to.options.letter;
        const QPointF middle = place(along);
        const QPointF slash(0.3 * h, -0.3 * h);
        const QPointF tick = upwards ? QPointF(0.4 * h, 0) : QPointF(0, 0.4 * h);
        to.painter.drawLine(middle - slash, middle + slash);
        to.painter.drawLine(middle - tick, middle + tick);
    }

    void text(qreal from, qreal upTo, const QString& words) const {
        const qreal h = to.options.letter;
        to.painter.save();
        to.painter.translate(place((from + upTo) / 2));
        if (upwards)
            to.painter.rotate(-90);
        to.text({-50 * h, -1.35 * h, 100 * h, 1.3 * h}, Qt::AlignHCenter | Qt::AlignBottom, words);
        to.painter.restore();
    }

    qreal widthOf(const QString& words) const {
        return QFontMetricsF(to.painter.font()).horizontalAdvance(words);
    }
};

/// One of the marks along a row: its place in the picture and its distance in mm.
struct Mark {
    qreal place;
    Double mm;
};

/// The marks of the anchors on an axis between the edges, each place once.
std::vector<Mark> marksOf(const Row& row, const PictureValues& values) {
    const Double half = (row.upwards ? values.width : values.length) / 2;
    std::vector<Double> all{-half, half};
    for (const PictureAnchor& anchor : values.anchors)
        all.push_back(row.upwards ? anchor.y : anchor.x);
    std::sort(all.begin(), all.end());
    constexpr Double same = 0.05; // mm
    std::vector<Mark> marks;
    for (const Double mm : all)
        if (marks.empty() || mm - marks.back().mm > same) {
            const QPointF place = row.to.frame.at({mm, mm});
            marks.push_back({row.upwards ? place.y() : place.x(), mm});
        }
    return marks;
}

void drawChain(const Row& row, const std::vector<Mark>& marks) {
    row.to.painter.drawLine(row.place(marks.front().place), row.place(marks.back().place));
    for (const Mark& mark : marks)
        row.end(mark.place);
    for (std::size_t i = 1; i < marks.size(); ++i)
        row.text(marks[i - 1].place, marks[i].place, millimetres(marks[i].mm - marks[i - 1].mm));
}

bool fits(const Row& row, const std::vector<Mark>& marks) {
    for (std::size_t i = 1; i < marks.size(); ++i)
        if (row.widthOf(millimetres(marks[i].mm - marks[i - 1].mm))
            > std::fabs(marks[i].place - marks[i - 1].place) - 0.3 * row.to.options.letter)
            return false;
    return true;
}

/// The chain with as many marks as its numbers have room for: all places of anchors, the outermost
/// ones, or the nearer edge alone.
void drawDistances(const Row& row, std::vector<Mark> marks) {
    if (marks.size() < 3)
        return;
    if (!fits(row, marks) && marks.size() > 4)
        marks = {marks.front(), marks[1], marks[marks.size() - 2], marks.back()};
    drawChain(row, marks);
}

void drawRows(const Strokes& to, const PictureValues& values, bool upwards) {
    const qreal h = to.options.letter;
    const QRectF& rows = upwards ? to.frame.up() : to.frame.along();
    const qreal first = upwards ? rows.right() - 0.3 * h : rows.top() + 1.5 * h;
    const qreal second = upwards ? rows.left() + 1.5 * h : rows.bottom() - 0.3 * h;
    drawDistances({to, upwards, first}, marksOf({to, upwards, first}, values));
    const Row whole{to, upwards, second};
    PictureValues plateAlone = values;
    plateAlone.anchors.clear();
    drawChain(whole, marksOf(whole, plateAlone));
}

} // namespace

void drawDimensions(const Strokes& to, const PictureValues& values) {
    to.painter.setFont(to.font(0.92));
    to.pen(to.palette.quiet, 0.06);
    drawRows(to, values, false);
    drawRows(to, values, true);
}

} // namespace ferna::live
