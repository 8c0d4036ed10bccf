#include "live/picture.h"

#include "live/figures.h"
#include "live/parts.h"
#include "live/pressure_field.h"
#include "live/verdict.h"

#include <algorithm>
#include <cmath>

namespace ferna::live {

namespace {

void drawPlateAndAxes(const Strokes& to) {
    const qreal h = to.options.letter;
    const QRectF& plate = to.frame.plate();
    const QPointF centre = plate.center();
    const qreal beyond = 1.1 * h;
    to.painter.setFont(to.font(0.92));
    to.pen(to.palette.quiet, 0.06, Qt::DashDotLine);
    to.painter.drawLine(QPointF(plate.left() - beyond, centre.y()),
                        QPointF(plate.right() + beyond, centre.y()));
    to.painter.drawLine(QPointF(centre.x(), plate.top() - beyond),
                        QPointF(centre.x(), plate.bottom() + beyond));
    to.text({plate.right() + 0.4 * h, centre.y() - 1.3 * h, 2 * h, 1.2 * h},
            Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("x"));
    to.text({centre.x() + 0.3 * h, plate.top() - 1.4 * h, 2 * h, 1.2 * h},
            Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("y"));
    to.pen(to.palette.ink, 0.15);
    to.painter.drawRect(plate);
}

void drawLine(const Strokes& to, const equilibrium::Segment& line, qreal share,
              Qt::PenStyle style) {
    to.pen(to.palette.line, share, style);
    to.painter.drawLine(to.frame.at(line[0]), to.frame.at(line[1]));
}

/// The axis about which a column tips over; it reaches as far as plate and anchors.
void drawTipping(const Strokes& to, const PictureCase& one) {
    to.painter.save();
    to.painter.setClipRect(to.frame.room());
    drawLine(to, one.found.tippingAxis, 0.25, Qt::DotLine);
    to.painter.restore();
}

void drawNeutralLines(const Strokes& to, const PictureValues& values) {
    const bool alone = values.cases.size() == 1;
    for (const PictureCase& one : values.cases)
        if (!one.found.exists)
            drawTipping(to, one);
        else if (one.found.neutralLine)
            drawLine(to, *one.found.neutralLine, alone ? 0.2 : 0.1, Qt::DashLine);
}

/// A sign and what it means.
struct Meaning {
    void (*sign)(const Strokes& to, const QRectF& in);
    QString words;
};

void lineSign(const Strokes& to, const QRectF& in) {
    to.pen(to.palette.line, 0.2, Qt::DashLine);
    to.painter.drawLine(QPointF(in.left(), in.center().y()), QPointF(in.right(), in.center().y()));
}

void axisSign(const Strokes& to, const QRectF& in) {
    to.pen(to.palette.line, 0.25, Qt::DotLine);
    to.painter.drawLine(QPointF(in.left(), in.center().y()), QPointF(in.right(), in.center().y()));
}

void anchorSign(const Strokes& to, const QRectF& in) {
    const qreal h = to.options.letter;
    to.pen(to.palette.ink, 0.12);
    to.painter.drawEllipse(in.center(), 0.5 * h, 0.5 * h);
    to.painter.setPen(Qt::NoPen);
    to.painter.setBrush(to.palette.tension);
    to.painter.drawEllipse(in.center(), 0.2 * h, 0.2 * h);
}

void cornerSign(const Strokes& to, const QRectF& in) {
    const qreal h = to.options.letter;
    to.pen(to.palette.ink, 0.12);
    to.painter.drawRect(QRectF(in.center() - QPointF(0.3 * h, 0.3 * h), QSizeF(0.6 * h, 0.6 * h)));
}

std::vector<Meaning> meaningsOf(const PictureValues& values, const PictureWords& words) {
    std::vector<Meaning> all;
    const auto any = [&](auto holds) {
        return std::any_of(values.cases.begin(), values.cases.end(), holds);
    };
    if (any([](const PictureCase& one) { return one.found.neutralLine.has_value(); }))
        all.push_back({lineSign, words.neutralLine});
    if (any([](const PictureCase& one) { return !one.found.exists; }))
        all.push_back({axisSign, words.tippingAxis});
    if (governingAnchor(pullsOf(values)) >= 0)
        all.push_back({anchorSign, words.governingAnchor});
    if (governingCorner(values))
        all.push_back({cornerSign, words.governingCorner});
    return all;
}

void drawLegend(const Strokes& to, const PictureValues& values) {
    const qreal h = to.options.letter;
    const QRectF& row = to.frame.legend();
    to.painter.setFont(to.font(0.92));
    const QFontMetricsF metrics(to.painter.font());
    qreal x = row.left();
    for (const Meaning& meaning : meaningsOf(values, to.options.words)) {
        const qreal width = metrics.horizontalAdvance(meaning.words);
        if (x + 3 * h + width > row.right())
            break;
        meaning.sign(to, {x, row.top(), 2.4 * h, row.height()});
        to.pen(to.palette.ink);
        to.text({x + 2.9 * h, row.top(), width, row.height()}, Qt::AlignLeft | Qt::AlignVCenter,
                meaning.words);
        x += 4.4 * h + width;
    }
}

/// The check that is used most, and in which case.
struct Governing {
    Check check = Check::Concrete;
    Double utilisation = 0;
    int caseNumber = 0; ///< 0: nothing was checked
};

Governing governingCheck(const PictureValues& values) {
    Governing most;
    for (const PictureCase& one : values.cases)
        if (one.used && (most.caseNumber == 0 || one.used->worst() > most.utilisation))
            most = {one.used->governing(), one.used->worst(), one.number};
    return most;
}

/// That nothing holds the column, where it is so.
QString tippingText(const PictureValues& values, const PictureWords& words) {
    QStringList tipping;
    for (const PictureCase& one : values.cases)
        if (!one.found.exists)
            tipping += words.inCase.arg(one.number);
    if (tipping.isEmpty() || values.cases.size() == 1)
        return tipping.isEmpty() ? QString() : words.noEquilibrium;
    return words.noEquilibrium + QStringLiteral(" (%1)").arg(tipping.join(QStringLiteral(", ")));
}

/// At the right of the title: how the case stands, with a sign. Returns the width it takes.
qreal drawVerdictAtTheRight(const Strokes& to, const PictureValues& values) {
    const qreal h = to.options.letter;
    const QRectF& title = to.frame.title();
    QString words = tippingText(values, to.options.words);
    Verdict verdict = Verdict::Exceeded;
    if (words.isEmpty()) {
        const Governing most = governingCheck(values);
        if (most.caseNumber == 0)
            return 0;
        verdict = verdictOf(most.utilisation);
        words = to.options.words.checks.at(static_cast<std::size_t>(most.check))
                + QStringLiteral(": ") + utilisationText(most.utilisation, to.options.words.above);
        if (values.cases.size() > 1)
            words += QStringLiteral(" (%1)").arg(to.options.words.inCase.arg(most.caseNumber));
    }
    const QColor colour =
        to.options.greyed ? to.palette.ink : verdictColour(verdict, to.options.theme);
    to.painter.setFont(to.font(1, true));
    const qreal width = std::min(QFontMetricsF(to.painter.font()).horizontalAdvance(words) + 1,
                                 0.75 * title.width());
    const QRectF text(title.right() - width, title.top(), width, title.height());
    to.pen(colour);
    to.fittingText(text, Qt::AlignRight | Qt::AlignVCenter, words);
    drawVerdict(to.painter,
                {text.left() - 1.8 * h, title.center().y() - 0.75 * h, 1.5 * h, 1.5 * h}, verdict,
                colour);
    return width + 2.5 * h;
}

void drawTexts(const Strokes& to, const PictureValues& values) {
    const qreal h = to.options.letter;
    const QRectF& title = to.frame.title();
    const qreal free = title.width() - drawVerdictAtTheRight(to, values);
    to.painter.setFont(to.font(1.2, true));
    const qreal width = QFontMetricsF(to.painter.font()).horizontalAdvance(values.title) + 1;
    to.pen(to.palette.ink);
    to.fittingText({title.left(), title.top(), std::min(width, free), title.height()},
                   Qt::AlignLeft | Qt::AlignVCenter, values.title);
    to.painter.setFont(to.font(0.92));
    to.pen(to.palette.quiet);
    if (const qreal rest = free - width - h; rest > 5 * h)
        to.fittingText({title.left() + width + h, title.top(), rest, title.height()},
                       Qt::AlignLeft | Qt::AlignVCenter, values.loads);
    to.fittingText(to.frame.foot(), Qt::AlignLeft | Qt::AlignVCenter, to.options.words.view);
}

/// Why the picture is that of an earlier input, across it.
void drawReason(const Strokes& to) {
    if (to.options.reason.isEmpty())
        return;
    const qreal h = to.options.letter;
    const QRectF& room = to.frame.room();
    to.painter.setFont(to.font(1.1, true));
    const QRectF most(0, 0, room.width() - 4 * h, room.height() - 2 * h);
    const QRectF text =
        QFontMetricsF(to.painter.font())
            .boundingRect(most, Qt::AlignCenter | Qt::TextWordWrap, to.options.reason);
    QRectF band(0, 0, std::min(text.width(), most.width()) + 2 * h,
                std::min(text.height(), most.height()) + h);
    band.moveCenter(room.center());
    to.pen(to.palette.ink, 0.09);
    QColor backing = to.palette.paper;
    backing.setAlpha(0xf0);
    to.painter.setBrush(backing);
    to.painter.drawRoundedRect(band, 0.3 * h, 0.3 * h);
    to.painter.drawText(band.adjusted(h, h / 2, -h, -h / 2), Qt::AlignCenter | Qt::TextWordWrap,
                        to.options.reason);
}

} // namespace

void drawPicture(QPainter& painter, const PictureValues& values, const PictureOptions& options) {
    constexpr qreal faded = 0.45;
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    const bool drawable = values.drawable();
    const Frame frame(drawable ? values : PictureValues{{}, {}, 1, 1, {}, {}}, options);
    const Strokes to(painter, frame, options);
    painter.fillRect(frame.whole(), to.palette.paper);
    if (options.greyed)
        painter.setOpacity(faded);
    if (drawable) {
        painter.fillRect(frame.plate(), to.palette.plate);
        drawField(painter, values, frame, options.theme, options.greyed);
        drawPlateAndAxes(to);
        drawNeutralLines(to, values);
        drawDimensions(to, values);
        drawPressureScale(to, values);
        drawAnchors(to, values);
        drawLegend(to, values);
    }
    drawTexts(to, values);
    painter.setOpacity(1);
    drawReason(to);
    painter.restore();
}

} // namespace ferna::live
