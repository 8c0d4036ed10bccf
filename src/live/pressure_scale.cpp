#include "live/figures.h"
#include "live/parts.h"

#include <QLinearGradient>

#include <algorithm>
#include <cmath>

namespace ferna::live {

namespace {

/// The step of the numbers: 1, 2 or 5 of a power of ten, at most `most` of them up to the top.
Double stepUpTo(Double top, int most) {
    const Double power = std::pow(10, std::floor(std::log10(top / most)));
    for (const Double step : {power, 2 * power, 5 * power, 10 * power})
        if (top / step <= most)
            return step;
    return top;
}

/// A number with the decimals that the step needs; a very large or small one with an exponent.
QString withDecimalsOf(Double value, Double step) {
    constexpr int most = 6;
    const int decimals = std::max(0, static_cast<int>(-std::floor(std::log10(step))));
    if (decimals > most)
        return QString::number(value, 'g', 3).replace(u'.', decimalSign());
    if (decimals == 0 && value >= 1e5)
        return figure(value);
    return Format(value, decimals > 0 ? QStringLiteral("0.").append(QString(decimals, u'0'))
                                      : QStringLiteral("0"));
}

void drawNumbers(const Strokes& to, const QRectF& bar, Double top) {
    const qreal h = to.options.letter;
    const auto number = [&](Double value, const QString& words) {
        const qreal y = bar.bottom() - bar.height() * (value / top);
        to.painter.drawLine(QPointF(bar.right(), y), QPointF(bar.right() + 0.3 * h, y));
        to.text({bar.right() + 0.5 * h, y - h, 4 * h, 2 * h}, Qt::AlignLeft | Qt::AlignVCenter,
                words);
    };
    const int most = std::max(1, static_cast<int>(bar.height() / (2.2 * h)));
    const Double step = stepUpTo(top, most);
    number(top, figure(top));
    for (int i = 0; i * step < top && i <= most; ++i)
        if ((1 - i * step / top) * bar.height() > 1.3 * h)
            number(i * step, withDecimalsOf(i * step, step));
}

/// Above the scale. Words longer than the scale is wide reach over the drawing, where nothing
/// stands so high up.
QRectF headingOf(const Strokes& to, const QString& words) {
    const QRectF& room = to.frame.pressures();
    const qreal width = 1.02 * QFontMetricsF(to.painter.font()).horizontalAdvance(words) + 1;
    const qreal left =
        std::max(to.frame.room().left(), std::min(room.left(), room.right() - width));
    return {left, room.top(), room.right() - left, 1.6 * to.options.letter};
}

} // namespace

void drawPressureScale(const Strokes& to, const PictureValues& values) {
    const qreal h = to.options.letter;
    const QRectF& room = to.frame.pressures();
    const std::optional<PressedCorner> most = governingCorner(values);
    to.painter.setFont(to.font());
    to.pen(to.palette.ink);
    if (!most) {
        if (std::any_of(values.cases.begin(), values.cases.end(),
                        [](const PictureCase& one) { return one.found.exists; }))
            to.fittingText(headingOf(to, to.options.words.noPressure),
                           Qt::AlignRight | Qt::AlignVCenter, to.options.words.noPressure);
        return;
    }
    to.fittingText(headingOf(to, to.options.words.pressure), Qt::AlignLeft | Qt::AlignVCenter,
                   to.options.words.pressure);
    const QRectF bar(room.left(), room.top() + 2.4 * h, 1.3 * h,
                     std::max(room.height() - 4 * h, h));
    QLinearGradient gradient(bar.bottomLeft(), bar.topLeft());
    gradient.setStops(pressureStops(0, 1, to.options.theme, to.options.greyed));
    to.painter.setBrush(gradient);
    to.painter.drawRect(bar);
    to.painter.setBrush(Qt::NoBrush);
    drawNumbers(to, bar, most->pressure);
}

} // namespace ferna::live
