#include "capacity/chart_frame.h"
#include "pages/drawing.h"
#include "runtime/format.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>
#include <unordered_set>

namespace ferna {

namespace {

constexpr QRgb ink = 0xff202020;
constexpr QRgb quiet = 0xff6a6a6a;
constexpr QRgb grid = 0xffdddddd;
constexpr QRgb inside = 0xfff1f6f1;

/// The colour, the word and the dashes of a border. By word and dashes also in grey.
struct BorderStyle {
    Border border;
    QRgb colour;
    Qt::PenStyle dashes;
    const char16_t* word;
};
constexpr std::array borderStyles{
    BorderStyle{Border::Concrete, 0xff5b5b5b, Qt::SolidLine, u"docisk 2Rb"},
    BorderStyle{Border::Tension, 0xff0b5fa5, Qt::SolidLine, u"rozciąganie kotwy"},
    BorderStyle{Border::Interaction, 0xff7a3fa0, Qt::DashLine, u"rozciąganie i ścinanie"},
    BorderStyle{Border::Tipping, 0xffb00020, Qt::DotLine, u"brak równowagi dalej"},
};

const BorderStyle& styleOf(Border border) {
    return *std::find_if(borderStyles.begin(), borderStyles.end(),
                         [&](const BorderStyle& style) { return style.border == border; });
}

/// Colour of a point by how far its checks are used, and what the legend says.
struct PointStyle {
    double upTo;
    QRgb colour;
    const char16_t* word;
};
constexpr std::array pointStyles{
    PointStyle{0.5, 0xff2b8a5a, u"do 50 %"},
    PointStyle{0.8, 0xff9aa518, u"do 80 %"},
    PointStyle{1.0, 0xffe08a00, u"do 100 %"},
    PointStyle{HUGE_VAL, 0xffc00020, u"ponad 100 %"},
};

const PointStyle& styleOf(double used) {
    return *std::find_if(pointStyles.begin(), pointStyles.end(), [&](const PointStyle& style) {
        return used <= style.upTo || std::isinf(style.upTo);
    });
}

class Drawing {
public:
    Drawing(QPainter& painter, const QRectF& place, const Chart& chart, qreal letter)
        : painter_(painter), chart_(chart), frame_(place, chart, letter), letter_(letter) {}

    void draw() {
        painter_.save();
        painter_.setRenderHint(QPainter::Antialiasing);
        drawTitle();
        drawInside();
        drawAxes();
        drawLine();
        drawPoints();
        drawNames();
        drawLegend();
        painter_.restore();
    }

private:
    void font(qreal share, bool bold = false) {
        QFont face = drawing::fontOf(1, bold ? QFont::Bold : QFont::Normal);
        face.setPixelSize(std::max(1, qRound(share * letter_)));
        painter_.setFont(face);
    }

    void text(const QRectF& in, int alignment, const QString& words) {
        const QFontMetricsF metrics(painter_.font());
        painter_.drawText(in, alignment | Qt::TextSingleLine | Qt::TextDontClip,
                          metrics.elidedText(words, Qt::ElideRight, std::max(in.width(), letter_)));
    }

    void pen(QRgb colour, qreal share, Qt::PenStyle style = Qt::SolidLine) {
        painter_.setPen(QPen(QColor(colour), share * letter_, style, Qt::FlatCap, Qt::RoundJoin));
    }

    void drawTitle() {
        const QRectF& title = frame_.title();
        pen(ink, 0.1);
        font(1.15, true);
        text(title, Qt::AlignTop | Qt::AlignLeft, titleOf(chart_));
        font(0.9);
        pen(quiet, 0.1);
        text(title, Qt::AlignBottom | Qt::AlignLeft, shearWords(chart_));
    }

    QPainterPath path() const {
        QPainterPath outline;
        for (const LinePoint& point : chart_.line.points)
            if (outline.elementCount() == 0)
                outline.moveTo(frame_.at(point.load));
            else
                outline.lineTo(frame_.at(point.load));
        outline.closeSubpath();
        return outline;
    }

    void drawInside() {
        if (!chart_.line.points.empty())
            painter_.fillPath(path(), QColor(inside));
    }

    void drawAxes() {
        const QRectF& field = frame_.field();
        font(0.9);
        for (const double tick : frame_.across().ticks()) {
            const qreal x = field.left()
                            + (tick - frame_.across().least)
                                  / (frame_.across().most - frame_.across().least) * field.width();
            pen(tick == 0 ? quiet : grid, tick == 0 ? 0.08 : 0.06);
            painter_.drawLine(QPointF(x, field.top()), QPointF(x, field.bottom()));
            pen(ink, 0.1);
            text(
                QRectF(x - 4 * letter_, field.bottom() + 0.3 * letter_, 8 * letter_, letter_ * 1.4),
                Qt::AlignHCenter | Qt::AlignTop, general(tick));
        }
        for (const double tick : frame_.up().ticks()) {
            const qreal y = field.bottom()
                            - (tick - frame_.up().least) / (frame_.up().most - frame_.up().least)
                                  * field.height();
            pen(tick == 0 ? quiet : grid, tick == 0 ? 0.08 : 0.06);
            painter_.drawLine(QPointF(field.left(), y), QPointF(field.right(), y));
            pen(ink, 0.1);
            text(QRectF(field.left() - 5.4 * letter_, y - letter_, 5 * letter_, 2 * letter_),
                 Qt::AlignRight | Qt::AlignVCenter, general(tick));
        }
        pen(quiet, 0.1);
        painter_.setBrush(Qt::NoBrush);
        painter_.drawRect(field);
        drawAxisNames(field);
    }

    void drawAxisNames(const QRectF& field) {
        font(0.95, true);
        pen(ink, 0.1);
        text(QRectF(field.left(), field.bottom() + 1.7 * letter_, field.width(), 1.5 * letter_),
             Qt::AlignHCenter | Qt::AlignTop,
             chart_.plane == ChartPlane::NM2 ? QStringLiteral("M2 [kNm]")
                                             : QStringLiteral("M1 [kNm]"));
        text(QRectF(field.left() - 4.5 * letter_, field.top() - 1.7 * letter_, 16 * letter_,
                    1.5 * letter_),
             Qt::AlignLeft | Qt::AlignVCenter,
             chart_.plane == ChartPlane::M1M2 ? QStringLiteral("M2 [kNm]")
                                              : QStringLiteral("N [kN], ściskanie dodatnie"));
    }

    void drawLine() {
        const std::vector<LinePoint>& points = chart_.line.points;
        if (points.empty()) {
            const QRectF band(frame_.field().left() + letter_,
                              frame_.field().center().y() - letter_,
                              frame_.field().width() - 2 * letter_, 2 * letter_);
            painter_.fillRect(band, Qt::white);
            pen(styleOf(Border::Tipping).colour, 0.1);
            font(1, true);
            text(band, Qt::AlignCenter,
                 chart_.plane == ChartPlane::M1M2
                     ? QStringLiteral("Podstawa nie przenosi takiej siły N przy żadnych momentach.")
                     : QStringLiteral("Siła pozioma przekracza nośność kotew na ścinanie."));
            return;
        }
        // Pieces of one border each, so that dashes run on.
        std::size_t from = 0;
        while (from < points.size()) {
            std::size_t to = from;
            while (to + 1 < points.size() && points[to + 1].border == points[from].border)
                ++to;
            QPainterPath piece(frame_.at(points[from].load));
            for (std::size_t k = from + 1; k <= std::min(to + 1, points.size()); ++k)
                piece.lineTo(frame_.at(points[k % points.size()].load));
            const BorderStyle& style = styleOf(points[from].border);
            pen(style.colour, 0.2, style.dashes);
            painter_.setBrush(Qt::NoBrush);
            painter_.drawPath(piece);
            from = to + 1;
        }
    }

    /// A load in the plane is filled, another is a ring; one used above its limits has a cross.
    void drawMark(QPointF at, double used, bool inPlane) {
        const qreal radius = 0.42 * letter_;
        const QColor colour(styleOf(used).colour);
        painter_.setPen(QPen(colour, 0.16 * letter_));
        painter_.setBrush(inPlane ? QBrush(colour) : QBrush(Qt::white));
        painter_.drawEllipse(at, radius, radius);
        if (used > 1) {
            painter_.setPen(QPen(inPlane ? QColor(Qt::white) : colour, 0.14 * letter_));
            const qreal arm = 0.6 * radius;
            painter_.drawLine(at - QPointF(arm, arm), at + QPointF(arm, arm));
            painter_.drawLine(at - QPointF(arm, -arm), at + QPointF(arm, -arm));
        }
    }

    /// The most used ones last, so that none of them is covered.
    void drawPoints() {
        std::vector<const ChartPoint*> order;
        for (const ChartPoint& point : chart_.points)
            order.push_back(&point);
        std::stable_sort(order.begin(), order.end(), [](const ChartPoint* a, const ChartPoint* b) {
            return a->used < b->used;
        });
        constexpr std::size_t many = 2000;
        if (order.size() > many)
            order = uncovered(order);
        for (const ChartPoint* point : order)
            drawMark(frame_.atPoint(*point), point->used, liesInPlane(chart_, point->load));
    }

    /// Those whose mark no later one covers by more than a sliver, in their order: a hundred
    /// thousand points are drawn in the time of the field's area.
    std::vector<const ChartPoint*> uncovered(const std::vector<const ChartPoint*>& order) const {
        const qreal cell = 0.2 * letter_;
        std::unordered_set<std::int64_t> taken;
        std::vector<const ChartPoint*> seen;
        for (auto point = order.rbegin(); point != order.rend(); ++point) {
            const QPointF at = frame_.atPoint(**point) / cell;
            constexpr std::int64_t row = 1 << 20;
            if (taken.insert(row * qRound64(at.y()) + qRound64(at.x())).second)
                seen.push_back(*point);
        }
        std::reverse(seen.begin(), seen.end());
        return seen;
    }

    QString nameOf(const ChartPoint& point, bool isNearest) const {
        QString words = point.name;
        if (isNearest)
            words += QStringLiteral(": ") + usedWords(point.used) + QStringLiteral(", mnożnik ")
                     + factorWords(point.factor);
        if (frame_.isOutside(point))
            words += QStringLiteral(" (poza rysunkiem)");
        return words;
    }

    /// The nearest one is named, and of few all are.
    void drawNames() {
        constexpr std::size_t few = 8;
        const int nearest = nearestToLine(chart_);
        constexpr std::size_t weighed = 2000; // whose marks a name is to leave free
        std::vector<QRectF> taken;
        for (const ChartPoint& point : chart_.points)
            if (taken.size() < weighed)
                taken.push_back(around(frame_.atPoint(point), QSizeF(letter_, letter_)));
        const auto name = [&](int i) {
            const ChartPoint& point = chart_.points[static_cast<std::size_t>(i)];
            font(0.9, i == nearest);
            drawName(frame_.atPoint(point), nameOf(point, i == nearest), taken);
        };
        if (nearest >= 0)
            name(nearest);
        for (int i = 0; i < static_cast<int>(chart_.points.size()); ++i)
            if (i != nearest && chart_.points.size() <= few)
                name(i);
    }

    static QRectF around(QPointF middle, QSizeF size) {
        return {middle - QPointF(size.width() / 2, size.height() / 2), size};
    }

    void drawName(QPointF at, const QString& words, std::vector<QRectF>& taken) {
        const QFontMetricsF metrics(painter_.font());
        const QSizeF size(metrics.horizontalAdvance(words) + 0.4 * letter_, 1.25 * letter_);
        const qreal x = size.width() / 2 + 0.7 * letter_;
        const qreal y = 1.2 * letter_;
        QRectF best;
        qreal least = HUGE_VAL;
        for (const QPointF& shift :
             {QPointF(x, 0), QPointF(-x, 0), QPointF(0, -y), QPointF(0, y), QPointF(x, -y),
              QPointF(-x, -y), QPointF(x, y), QPointF(-x, y), QPointF(x, 2 * y), QPointF(x, -2 * y),
              QPointF(-x, 3 * y), QPointF(-x, -3 * y), QPointF(0, 4 * y), QPointF(0, -4 * y),
              QPointF(-x, 6 * y), QPointF(-x, -6 * y)}) {
            const QRectF place = around(at + shift, size);
            const QRectF cut = place & frame_.field();
            qreal covered = size.width() * size.height() - cut.width() * cut.height()
                            + 0.1 * letter_ * std::hypot(shift.x(), 2 * shift.y());
            for (const LinePoint& point : chart_.line.points)
                covered += place.contains(frame_.at(point.load)) ? 0.1 * letter_ * letter_ : 0;
            for (const QRectF& other : taken) {
                const QRectF common = place & other;
                covered += common.width() * common.height();
            }
            if (covered < least) {
                least = covered;
                best = place;
            }
        }
        if (!best.adjusted(-letter_, -letter_, letter_, letter_).contains(at)) { // far away
            pen(quiet, 0.08);
            painter_.drawLine(at, QPointF(std::clamp(at.x(), best.left(), best.right()),
                                          std::clamp(at.y(), best.top(), best.bottom())));
        }
        painter_.fillRect(best, QColor(255, 255, 255, 200));
        pen(ink, 0.1);
        painter_.drawText(best, Qt::AlignCenter | Qt::TextSingleLine | Qt::TextDontClip, words);
        taken.push_back(best);
    }

    void drawLegend() {
        font(0.9);
        QPointF at = frame_.legend().topLeft() + QPointF(0, 0.75 * letter_);
        for (const BorderStyle& style : borderStyles)
            if (std::any_of(chart_.line.points.begin(), chart_.line.points.end(),
                            [&](const LinePoint& point) { return point.border == style.border; })) {
                pen(style.colour, 0.2, style.dashes);
                painter_.drawLine(at, at + QPointF(2 * letter_, 0));
                at = legendWord(at + QPointF(2.4 * letter_, 0), QString::fromUtf16(style.word));
            }
        if (chart_.points.empty())
            return;
        at = frame_.legend().topLeft() + QPointF(0.6 * letter_, 2.25 * letter_);
        double used = 0.25;
        for (const PointStyle& style : pointStyles) {
            drawMark(at, used, true);
            at = legendWord(at + QPointF(0.9 * letter_, 0), QString::fromUtf16(style.word))
                 + QPointF(0.6 * letter_, 0);
            used = std::isinf(style.upTo) ? used : style.upTo + 0.1;
        }
        if (std::any_of(chart_.points.begin(), chart_.points.end(), [&](const ChartPoint& point) {
                return !liesInPlane(chart_, point.load);
            })) {
            at = frame_.legend().topLeft() + QPointF(0.6 * letter_, 3.75 * letter_);
            drawMark(at, 0.25, false);
            legendWord(
                at + QPointF(0.9 * letter_, 0),
                chart_.plane == ChartPlane::M1M2
                    ? QStringLiteral("obciążenie z inną siłą N: rzut, barwa według niego samego")
                    : QStringLiteral("obciążenie z drugim momentem: rzut, barwa według "
                                     "niego samego"));
        }
    }

    /// Writes a word of the legend; where the next sign begins.
    QPointF legendWord(QPointF at, const QString& words) {
        pen(ink, 0.1);
        const qreal width = QFontMetricsF(painter_.font()).horizontalAdvance(words);
        painter_.drawText(QRectF(at.x(), at.y() - letter_, width + letter_, 2 * letter_),
                          Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip,
                          words);
        return at + QPointF(width + 1.2 * letter_, 0);
    }

    QPainter& painter_;
    const Chart& chart_;
    const ChartFrame frame_;
    const qreal letter_;
};

} // namespace

void drawChart(QPainter& painter, const QRectF& place, const Chart& chart, qreal letter) {
    Drawing(painter, place, chart, letter).draw();
}

} // namespace ferna
