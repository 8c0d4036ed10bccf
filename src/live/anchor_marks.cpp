#include "live/figures.h"
#include "live/label_places.h"
#include "live/parts.h"

#include <algorithm>
#include <cmath>

namespace ferna::live {

namespace {

/// How much the labels say: all, the pull without the diameter, or the number alone.
enum class Saying { All, Pulls, Numbers };

/// A label and what it says.
struct Words {
    Label label;
    QString first;    ///< the anchor; of a corner its pressure
    QString second;   ///< its pull
    qreal filled = 0; ///< of the bar; 0: no bar
    bool governs = false;
    bool chosen = false;
    bool quiet = false;
};

constexpr qreal line = 1.2; // of the height of a letter
constexpr qreal edge = 0.25;
constexpr qreal barWidth = 0.55;

struct Marks {
    const Strokes& to;
    const PictureValues& values;
    std::vector<AnchorPull> pulls;
    int governing;
    Double largest = 0; ///< pull, kN

    Marks(const Strokes& strokes, const PictureValues& of)
        : to(strokes), values(of), pulls(pullsOf(of)), governing(governingAnchor(pulls)) {
        for (const AnchorPull& pull : pulls)
            largest = std::max(largest, pull.force);
    }

    bool isEnvelope() const { return values.cases.size() > 1; }
    QString ofCase(int number) const {
        return isEnvelope() ? QStringLiteral(" (%1)").arg(to.options.words.inCase.arg(number))
                            : QString();
    }
};

QString forceText(Double force) {
    constexpr Double least = 0.01; // kN
    return force < least ? u'<' + withUnit(least, "kN") : withUnit(force, "kN");
}

Words wordsOf(const Marks& marks, std::size_t i, Saying saying) {
    const PictureAnchor& anchor = marks.values.anchors[i];
    const AnchorPull& pull = marks.pulls[i];
    Words words;
    words.label.of = marks.to.frame.at({anchor.x, anchor.y});
    words.label.radius = marks.to.frame.radius(anchor) + 0.25 * marks.to.options.letter;
    words.governs = static_cast<int>(i) == marks.governing;
    words.chosen = static_cast<int>(i) + 1 == marks.to.options.chosenAnchor;
    words.quiet = !(pull.force > 0);
    words.first = QString::number(i + 1);
    if (saying == Saying::All)
        words.first += QStringLiteral(" \u00d8%1").arg(anchor.diameter);
    if (pull.force > 0) {
        words.filled = pull.force / marks.largest;
        if (saying != Saying::Numbers || words.governs || words.chosen)
            words.second = forceText(pull.force);
        if (saying == Saying::All)
            words.second += marks.ofCase(pull.caseNumber);
    }
    return words;
}

void measure(const Strokes& to, Words& words) {
    const qreal h = to.options.letter;
    const QFontMetricsF bold(to.font(1, true));
    const QFontMetricsF plain(to.font());
    const qreal width =
        std::max(bold.horizontalAdvance(words.first), plain.horizontalAdvance(words.second));
    const qreal bar = words.filled > 0 ? (barWidth + edge) * h : 0;
    const qreal lines = words.second.isEmpty() ? 1 : 2;
    words.label.size = {width + bar + 2 * edge * h, lines * line * h + edge * h};
}

void drawBar(const Strokes& to, const QRectF& bar, qreal filled) {
    to.pen(to.palette.tension, 0.06);
    to.painter.drawRect(bar);
    to.painter.fillRect(QRectF(bar.left(), bar.bottom() - filled * bar.height(), bar.width(),
                               filled * bar.height()),
                        to.palette.tension);
}

/// A line from what a label names to the label, where it lies apart.
void drawLeader(const Strokes& to, const Label& label) {
    const QRectF& place = label.place;
    const QPointF nearest(std::clamp(label.of.x(), place.left(), place.right()),
                          std::clamp(label.of.y(), place.top(), place.bottom()));
    const QPointF way = nearest - label.of;
    const qreal length = std::hypot(way.x(), way.y());
    if (length < label.radius + 0.8 * to.options.letter)
        return;
    to.pen(to.palette.quiet, 0.06);
    to.painter.drawLine(label.of + way * (label.radius / length), nearest);
}

void drawWords(const Strokes& to, const Words& words) {
    const qreal h = to.options.letter;
    const QRectF& place = words.label.place;
    to.painter.setPen(words.chosen ? QPen(to.palette.chosen, 0.12 * h) : QPen(Qt::NoPen));
    to.painter.setBrush(to.palette.label);
    to.painter.drawRoundedRect(place, 0.2 * h, 0.2 * h);
    QRectF lines = place.adjusted(edge * h, edge * h / 2, -edge * h, -edge * h / 2);
    if (words.filled > 0) {
        drawBar(to,
                QRectF(lines.left(), lines.top() + 0.1 * h, barWidth * h, lines.height() - 0.2 * h),
                words.filled);
        lines.setLeft(lines.left() + (barWidth + edge) * h);
    }
    to.painter.setFont(to.font(1, !words.quiet));
    to.pen(words.quiet ? to.palette.quiet : to.palette.ink);
    to.text({lines.left(), lines.top(), lines.width(), line * h}, Qt::AlignLeft | Qt::AlignVCenter,
            words.first);
    if (words.second.isEmpty())
        return;
    to.painter.setFont(to.font(1, words.governs));
    to.text({lines.left(), lines.top() + line * h, lines.width(), line * h},
            Qt::AlignLeft | Qt::AlignVCenter, words.second);
}

void drawAnchor(const Marks& marks, std::size_t i) {
    const Strokes& to = marks.to;
    const qreal h = to.options.letter;
    const PictureAnchor& anchor = marks.values.anchors[i];
    const QPointF centre = to.frame.at({anchor.x, anchor.y});
    const qreal r = to.frame.radius(anchor);
    const bool pulled = marks.pulls[i].force > 0;
    to.pen(pulled ? to.palette.tension : to.palette.quiet, pulled ? 0.16 : 0.09);
    to.painter.setBrush(to.palette.label);
    to.painter.drawEllipse(centre, r, r);
    if (pulled) {
        to.painter.setPen(Qt::NoPen);
        to.painter.setBrush(to.palette.tension);
        to.painter.drawEllipse(centre, 0.45 * r, 0.45 * r);
    }
    if (static_cast<int>(i) == marks.governing) {
        to.pen(to.palette.ink, 0.12);
        to.painter.drawEllipse(centre, r + 0.3 * h, r + 0.3 * h);
    }
    if (static_cast<int>(i) + 1 == to.options.chosenAnchor) {
        to.pen(to.palette.chosen, 0.2);
        to.painter.drawEllipse(centre, r + 0.55 * h, r + 0.55 * h);
    }
}

/// The side of the square over the corner, of the height of a letter.
constexpr qreal cornerSide = 0.6;

QRectF cornerMark(const Strokes& to, QPointF corner) {
    const qreal side = cornerSide * to.options.letter;
    return {corner - QPointF(side / 2, side / 2), QSizeF(side, side)};
}

/// A small square over the corner and the pressure there.
std::optional<Words> drawCorner(const Marks& marks) {
    const std::optional<PressedCorner> most = governingCorner(marks.values);
    if (!most)
        return std::nullopt;
    const Strokes& to = marks.to;
    const qreal h = to.options.letter;
    const QPointF corner = to.frame.at(most->corner);
    to.pen(to.palette.ink, 0.12);
    to.painter.setBrush(to.palette.paper);
    to.painter.drawRect(cornerMark(to, corner));
    Words words;
    words.label.of = corner;
    words.label.radius = 0.35 * h;
    words.first = withUnit(most->pressure, "MPa") + marks.ofCase(most->caseNumber);
    words.governs = true;
    return words;
}

/// The anchors that pull first: they have the first choice of a place.
std::vector<Words> allWords(const Marks& marks, const std::optional<Words>& corner, Saying saying) {
    std::vector<Words> all;
    if (corner)
        all.push_back(*corner);
    for (const bool pulled : {true, false})
        for (std::size_t i = 0; i < marks.pulls.size(); ++i)
            if ((marks.pulls[i].force > 0) == pulled)
                all.push_back(wordsOf(marks, i, saying));
    for (Words& words : all)
        measure(marks.to, words);
    return all;
}

/// What no label may cover.
std::vector<QRectF> takenPlaces(const Marks& marks) {
    std::vector<QRectF> taken{marks.to.frame.along(), marks.to.frame.up()};
    if (const std::optional<PressedCorner> most = governingCorner(marks.values))
        taken.push_back(cornerMark(marks.to, marks.to.frame.at(most->corner)));
    for (const PictureAnchor& anchor : marks.values.anchors) {
        const qreal r = marks.to.frame.radius(anchor);
        const QPointF centre = marks.to.frame.at({anchor.x, anchor.y});
        taken.emplace_back(centre - QPointF(r, r), QSizeF(2 * r, 2 * r));
    }
    return taken;
}

/// The edges of the plate, which labels rather leave free.
std::vector<QRectF> edgesOf(const Marks& marks) {
    const QRectF& plate = marks.to.frame.plate();
    const qreal pen = 0.3 * marks.to.options.letter;
    const qreal x = plate.left() - pen / 2;
    const qreal y = plate.top() - pen / 2;
    return {{x, y, plate.width() + pen, pen},
            {x, plate.bottom() - pen / 2, plate.width() + pen, pen},
            {x, y, pen, plate.height() + pen},
            {plate.right() - pen / 2, y, pen, plate.height() + pen}};
}

/// Places the labels; what they cover.
qreal placed(const Marks& marks, std::vector<Words>& all) {
    std::vector<Label> labels;
    labels.reserve(all.size());
    for (const Words& words : all)
        labels.push_back(words.label);
    const qreal covered =
        placeLabels(labels, marks.to.frame.room(), takenPlaces(marks), edgesOf(marks));
    for (std::size_t i = 0; i < all.size(); ++i)
        all[i].label.place = labels[i].place;
    return covered;
}

} // namespace

void drawAnchors(const Strokes& to, const PictureValues& values) {
    const Marks marks(to, values);
    for (std::size_t i = 0; i < values.anchors.size(); ++i)
        drawAnchor(marks, i);
    const std::optional<Words> corner = drawCorner(marks);
    std::vector<Words> best;
    qreal least = -1;
    for (const Saying saying : {Saying::All, Saying::Pulls, Saying::Numbers}) {
        std::vector<Words> all = allWords(marks, corner, saying);
        const qreal covered = placed(marks, all);
        if (least < 0 || covered < least) {
            least = covered;
            best = std::move(all);
        }
        if (least == 0)
            break;
    }
    for (const Words& words : best)
        drawLeader(to, words.label);
    for (const Words& words : best)
        drawWords(to, words);
}

} // namespace ferna::live
