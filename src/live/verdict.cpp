#include "live/verdict.h"

#include "notes/stress_words.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>

namespace ferna::live {

namespace {

void drawTick(QPainter& painter, const QRectF& in) {
    const qreal w = in.width();
    painter.drawEllipse(in);
    painter.drawPolyline(QPolygonF{{in.left() + 0.27 * w, in.top() + 0.52 * w},
                                   {in.left() + 0.44 * w, in.top() + 0.68 * w},
                                   {in.left() + 0.74 * w, in.top() + 0.33 * w}});
}

void drawTriangle(QPainter& painter, const QRectF& in) {
    const qreal x = in.center().x();
    const qreal w = in.width();
    painter.drawPolygon(
        QPolygonF{{x, in.top()}, {in.right(), in.bottom()}, {in.left(), in.bottom()}});
    painter.drawLine(QPointF(x, in.top() + 0.36 * w), QPointF(x, in.top() + 0.66 * w));
    painter.drawLine(QPointF(x, in.top() + 0.8 * w), QPointF(x, in.top() + 0.82 * w));
}

void drawCross(QPainter& painter, const QRectF& in) {
    painter.drawRect(in);
    const QRectF cross =
        in.adjusted(0.26 * in.width(), 0.26 * in.width(), -0.26 * in.width(), -0.26 * in.width());
    painter.drawLine(cross.topLeft(), cross.bottomRight());
    painter.drawLine(cross.topRight(), cross.bottomLeft());
}

} // namespace

Verdict verdictOf(Double utilisation) {
    constexpr Double close = 0.95;
    if (utilisation < close)
        return Verdict::Kept;
    return utilisation <= 1 ? Verdict::Close : Verdict::Exceeded;
}

QString verdictWord(Verdict verdict) {
    switch (verdict) {
    case Verdict::Kept:
        return QStringLiteral("spełniony");
    case Verdict::Close:
        return QStringLiteral("bliski granicy");
    case Verdict::Exceeded:
        break;
    }
    return QStringLiteral("przekroczony");
}

QColor verdictColour(Verdict verdict, Theme theme) {
    const bool light = theme == Theme::Light;
    switch (verdict) {
    case Verdict::Kept:
        return light ? QColor(0x1a, 0x7f, 0x37) : QColor(0x5f, 0xd0, 0x7d);
    case Verdict::Close:
        return light ? QColor(0x9a, 0x67, 0x00) : QColor(0xf0, 0xc0, 0x4a);
    case Verdict::Exceeded:
        break;
    }
    return light ? QColor(0xc4, 0x1e, 0x1e) : QColor(0xff, 0x80, 0x78);
}

void drawVerdict(QPainter& painter, const QRectF& in, Verdict verdict, const QColor& colour) {
    painter.save();
    const qreal side = std::min(in.width(), in.height());
    QRectF square(0, 0, 0.8 * side, 0.8 * side);
    square.moveCenter(in.center());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, 0.1 * side, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    constexpr std::array signs{drawTick, drawTriangle, drawCross};
    signs.at(static_cast<std::size_t>(verdict))(painter, square);
    painter.restore();
}

QString utilisationText(Double utilisation, const QString& above) {
    constexpr Double most = 9.995;
    return utilisation < most ? notes::percent(utilisation) : above;
}

} // namespace ferna::live
